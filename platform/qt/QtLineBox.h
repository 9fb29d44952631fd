#pragma once

#include <QLineEdit>

#include "platform/qt/EditBox.h"

namespace kel::qt {

/// The single-line edit box.
class QtLineBox final : public QLineEdit, public EditBox {
public:
    QtLineBox(ControlSite& site, TextBoxListener& listener, QWidget& parent);

    void setVisible(bool visible) override;

    bool isTall() const override { return false; }
    int baseline() const override;
    QWidget& mouseArea() override { return *this; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { inputMethodSpoke(*event); }
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    std::u16string shownText() override;
    void showEdited(std::u16string_view text, std::size_t caret) override;
    void showNew(std::u16string_view text) override;
    Selection shownSelection() const override;
    void showSelection(const Selection& selection) override;
    void showLocked(bool locked) override { setReadOnly(locked); }
    void showPasswordChar(char16_t character) override;
    void compose(QInputMethodEvent& event) override { QLineEdit::inputMethodEvent(&event); }
    bool isMirrored() const override { return QLineEdit::text().isRightToLeft(); }

    void makeRoom(std::size_t units);
};

}  // namespace kel::qt
