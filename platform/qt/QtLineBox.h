#pragma once

#include <QLineEdit>

#include "platform/qt/EditBox.h"

namespace kel::qt {

/// The single-line edit box.
class QtLineBox final : public QLineEdit, public EditBox {
public:
    QtLineBox(ControlSite& site, TextBoxListener& listener, QWidget& parent);

    std::u16string text() const override;
    bool textEquals(std::u16string_view other) const override;
    std::int32_t textLength() const override;

    bool locked() const override { return isReadOnly(); }
    void setLocked(bool locked) override { setReadOnly(locked); }

    char16_t passwordChar() const override { return PasswordChar_; }
    void setPasswordChar(char16_t character) override;

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
    Selection selection() const override;
    void select(const Selection& selection) override;
    std::u16string textBetween(std::size_t start, std::size_t end) const override;
    void replace(std::size_t start, std::size_t end, std::u16string_view text) override;
    void replaceAll(std::u16string_view text) override;
    void compose(QInputMethodEvent& event) override { QLineEdit::inputMethodEvent(&event); }

    bool multiLine() const override { return false; }
    std::size_t snapped(std::size_t position) const override;
    std::size_t nextCodePoint(std::size_t position) const override;
    std::size_t previousCodePoint(std::size_t position) const override;
    std::size_t destination(EditAction move, std::size_t position) const override;
    void moveByLine(EditAction /*move*/, bool /*extend*/) override {}
    std::u16string pasteable(QStringView text) const override;

    void makeRoom(std::int64_t units);

    char16_t PasswordChar_ = 0;
};

}  // namespace kel::qt
