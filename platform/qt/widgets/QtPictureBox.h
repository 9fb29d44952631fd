#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include "host/widgets/PictureBox.h"
#include "platform/qt/widgets/PlacedView.h"

class QPainter;

namespace kel::qt {

/// A progress bar in the style's look with a text over it. It never has the focus; a screen reader reads it as a
/// progress bar. From right to left the bar begins at the right.
class QtPictureBox final : public QWidget, public PictureView, public PlacedView {
public:
    QtPictureBox(ControlSite& site, PictureBox& box, QWidget& parent);

    const BarPicture& picture() const { return Box_.picture(); }

    void outOfDate() override;
    void paintAgain() override { update(); }
    Size extentOf(std::u16string_view text) const override;
    void paintNow() override { repaint(); }
    void fontAgain() override;
    QAccessibleInterface* makeAccessible() override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* /*event*/) override { forget(); }
    void hideEvent(QHideEvent* /*event*/) override { forget(); }
    void paintEvent(QPaintEvent* event) override;

private:
    /// A bar that is empty, or one that is full: a half one is half of each.
    struct Side {
        QPixmap picture;
        QColor ink;  ///< of the text on it
    };

    QPixmap paintedByStyle(bool full) const;
    Side makeSide(bool full) const;
    void prepare();
    void forget();
    QRectF barArea() const;
    void paintSide(QPainter& painter, const Side& side, const QRectF& part) const;

    PictureBox& Box_;
    Side Empty_;  ///< none while it is to be painted
    Side Full_;
};

}  // namespace kel::qt
