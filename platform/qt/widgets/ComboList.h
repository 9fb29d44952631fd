#pragma once

#include <QListView>

#include "host/widgets/ComboBox.h"
#include "platform/qt/widgets/QtLine.h"

namespace kel::qt {

/// The list that a combo box drops: a window of rows below the box, which the box keeps up to date and closes. Keys
/// go to the box, whose focus does not know of it.
class ComboList final : public QListView {
public:
    /// Both outlive the list.
    ComboList(QtLine& box, ComboBox& combo);

    /// Shows it at the box, and the highlighted row in it. Above the box where there is more room.
    void drop();

    /// Of the box, where presses do not fall through when they close the list: they would open it again.
    void setButton(const QRect& button) { Button_ = button; }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void hideEvent(QHideEvent* event) override;

private:
    bool keyPassed(QKeyEvent& event);
    void pressedOutside(const QPoint& globalPosition);
    int heightOf(int rows) const;
    QRect place() const;

    QtLine& Box_;
    ComboBox& Combo_;
    QRect Button_;
};

}  // namespace kel::qt
