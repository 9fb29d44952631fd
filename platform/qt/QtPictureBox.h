#pragma once

#include <QWidget>

#include "host/Widgets.h"
#include "platform/qt/ChildWidget.h"
#include "platform/qt/QtTextual.h"

class QPainter;

namespace kel::qt {

/// A bar with a text over it. It never has the focus; a screen reader reads it as a progress bar. From right to left
/// the bar begins at the right.
class QtPictureBox final : public QWidget, public QtTextual<PictureBox, ChildWidget> {
public:
    QtPictureBox(ControlSite& site, QWidget& parent);

    Color foreColor() const override { return ForeColor_; }
    void setForeColor(Color color) override;

    std::int32_t textWidth(std::u16string_view text) const override;
    std::int32_t textHeight(std::u16string_view text) const override;

    const BarPicture& picture() const override { return Picture_; }
    void clear() override { draw({}); }
    void draw(const BarPicture& picture) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF barArea() const;
    void paintText(QPainter& painter, const QRectF& bar, const QColor& ink, const QColor& ground) const;

    BarPicture Picture_;
    Color ForeColor_ = colors::SystemWindowText;
};

}  // namespace kel::qt
