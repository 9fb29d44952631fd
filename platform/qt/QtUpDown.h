#pragma once

#include <optional>
#include <QBasicTimer>
#include <QWidget>

#include "host/Widgets.h"
#include "platform/qt/ChildWidget.h"
#include "platform/qt/QtChild.h"

namespace kel::qt {

/// A spinner: two buttons in the style's look with its arrows. It never has the focus.
class QtUpDown final : public QWidget, public QtChild<UpDown, ChildWidget> {
public:
    QtUpDown(ControlSite& site, UpDownListener& listener, QWidget& parent);

    void move(const Rect& bounds) override;

    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override;

    std::int32_t value() const override { return Value_; }
    void setValue(std::int32_t value) override { Value_ = value; }

    /// Where the button is.
    QRect half(bool upper) const;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Button { Upper, Lower };

    std::optional<Button> buttonAt(const QPoint& point) const;
    void hover(std::optional<Button> button);
    void step(int millisecondsToNext);
    void release();
    void paint(QPainter& painter, Button button) const;

    UpDownListener& Listener_;
    QBasicTimer Repeat_;
    std::optional<Button> Held_;
    std::optional<Button> Hovered_;
    std::int32_t Value_ = Rest;
    bool Visible_ = false;
};

}  // namespace kel::qt
