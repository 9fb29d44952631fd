#pragma once

#include <QLineEdit>
#include <QWheelEvent>

#include "platform/qt/QtComboField.h"
#include "platform/qt/QtTextBox.h"

namespace kel::qt {

/// One line of text, edited. `Box` is the edit box behind it: a text box or the text of a combo box.
template <class Box>
class QtLine : public QLineEdit, public Box {
public:
    void setVisible(bool visible) override;

    bool isTall() const override { return false; }
    int baseline() const override;
    QWidget& mouseArea() override { return *this; }

protected:
    /// The box is made of the site, this widget and what else it wants.
    template <class... Arguments>
    QtLine(QWidget& parent, ControlSite& site, Arguments&&... box)
        : QLineEdit(&parent), Box(site, *this, std::forward<Arguments>(box)...) {
        watchText();
    }

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { this->keyPressed(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { this->inputMethodSpoke(*event); }
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override { event->setAccepted(this->wheelTurned(*event)); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool postponesShowing() override;
    std::u16string shownText() override;
    void showEdited(std::u16string_view text, std::size_t caret) override;
    void showNew(std::u16string_view text) override;
    Selection shownSelection() const override;
    void showSelection(const Selection& selection) override;
    void showLocked(bool locked) override { setReadOnly(locked); }
    void compose(QInputMethodEvent& event) override { QLineEdit::inputMethodEvent(&event); }
    bool isMirrored() const override { return qtViewOf(Box::text()).isRightToLeft(); }
    std::size_t positionAt(const QPoint& point) const override;

    void watchText();
    void makeRoom(std::size_t units);

    bool IsTimeToShowPosted_ = false;
};

extern template class QtLine<QtTextBox>;
extern template class QtLine<QtComboField>;

}  // namespace kel::qt
