#pragma once

#include <optional>
#include <QBasicTimer>
#include <QWidget>

#include "host/widgets/UpDown.h"
#include "platform/qt/widgets/PlacedView.h"

namespace kel::qt {

/// A spinner: two buttons in the style's look with its arrows. It never has the focus.
class QtUpDown final : public QWidget, public View, public PlacedView {
public:
    QtUpDown(ControlSite& site, UpDown& spinner, QWidget& parent);

    void outOfDate() override;
    void paintAgain() override { update(); }

    QAccessibleInterface* makeAccessible() override;
    UpDown& spinner() const { return Spinner_; }
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

    UpDown& Spinner_;
    QBasicTimer Repeat_;
    std::optional<Button> Held_;
    std::optional<Button> Hovered_;
    std::int32_t Width_ = 0;  ///< twips, as the composite knows it
};

}  // namespace kel::qt
