#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/qt/EditBox.h"
#include "platform/qt/QtField.h"

namespace kel::qt {

/// A text box, whichever of Qt's widgets shows it.
class QtTextBox : public EditedTextBox<QtField<TextBox>>, public EditBox {
public:
    void setText(std::u16string_view text) override {
        expectNew();
        EditedTextBox::setText(text);
    }
    void setLocked(bool locked) override {
        if (locked == this->locked()) return;
        EditedTextBox::setLocked(locked);
        showLocked(locked);
    }
    void setPasswordChar(char32_t character) override {
        if (character == passwordChar()) return;
        EditedTextBox::setPasswordChar(character);
        showPasswordChar(Editor_.mask());
    }

    void gotFocus() override { gainFocus(); }
    void lostFocus() override { loseFocus(); }

protected:
    QtTextBox(ControlSite& site, QWidget& widget, TextBoxListener& listener, bool multiLine)
        : EditedTextBox(listener, *this, multiLine, site, widget), EditBox(Editor_, *this) {}

    using EditedTextBox::buffer;

private:
    bool takesInput() const override { return QtField::takesInput(); }

    virtual void showPasswordChar(char16_t mask) = 0;
};

}  // namespace kel::qt
