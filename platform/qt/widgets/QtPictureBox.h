#pragma once

#include <QWidget>

#include "host/widgets/PictureBox.h"
#include "platform/qt/widgets/PlacedView.h"

class QPainter;

namespace kel::qt {

/// A bar with a text over it. It never has the focus; a screen reader reads it as a progress bar. From right to left
/// the bar begins at the right.
class QtPictureBox final : public QWidget, public PictureView, public PlacedView {
public:
    QtPictureBox(ControlSite& site, PictureBox& box, QWidget& parent);

    const BarPicture& picture() const { return Box_.picture(); }

    void outOfDate() override;
    void paintAgain() override { update(); }
    Size extentOf(std::u16string_view text) const override;
    void paintNow() override { repaint(); }
    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF barArea() const;
    void paintText(QPainter& painter, const QRectF& bar, const QColor& ink, const QColor& ground) const;

    PictureBox& Box_;
};

}  // namespace kel::qt
