#pragma once

#include <QListView>

#include "platform/qt/widgets/QtComboBox.h"

namespace kel::qt {

/// The list that a combo box drops: a window of rows below the box, which the box keeps up to date and closes. Keys
/// go to the box, whose focus does not know of it.
class ComboList final : public QListView {
public:
    /// Both outlive the list.
    ComboList(QtComboBox& box, ComboBox& combo);

    /// Shows it at the box, and the highlighted row in it. Above the box where there is more room.
    void drop();

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

    QtComboBox& Box_;
    ComboBox& Combo_;
};

}  // namespace kel::qt
