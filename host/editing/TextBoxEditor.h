#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/editing/EditBuffer.h"
#include "host/Widgets.h"

namespace kel {

/// What an edit box has around it on its platform.
class EditSurroundings {
public:
    /// Whether the user can still act on the box: a handler may have disabled or hidden it.
    virtual bool takesInput() const = 0;

    /// Text or selection are other ones than they were; said before the control hears of it.
    virtual void bufferChanged() = 0;

    virtual std::u16string clipboardText() = 0;
    virtual void setClipboardText(std::u16string_view text) = 0;

    /// At least 1.
    virtual std::ptrdiff_t linesOfPage() const = 0;

    /// Where the widget breaks the lines; nullptr where the text does.
    virtual const TextLines* lines() const { return nullptr; }

protected:
    ~EditSurroundings() = default;
};

/// An edit box behind its widget: what keys, menus, mouse and code do to its text, and what the control is told
/// of it. The listener may do anything to the box meanwhile.
class TextBoxEditor {
public:
    /// Both outlive the editor.
    TextBoxEditor(TextBoxListener& listener, EditSurroundings& surroundings, bool multiLine)
        : Listener_(listener), Surroundings_(surroundings), Buffer_(multiLine) {}
    TextBoxEditor(const TextBoxEditor&) = delete;
    TextBoxEditor& operator=(const TextBoxEditor&) = delete;

    const EditBuffer& buffer() const { return Buffer_; }
    TextBoxListener& listener() const { return Listener_; }

    // ---- By code, as `TextBox` has it

    void setText(std::u16string_view text) { tell(Buffer_.put(text)); }
    void setSelStart(std::int32_t position);
    void setSelLength(std::int32_t length);
    void setSelText(std::u16string_view text) { tell(Buffer_.insert(text)); }
    bool locked() const { return Locked_; }
    void setLocked(bool locked) { Locked_ = locked; }
    std::int32_t maxLength() const { return static_cast<std::int32_t>(Buffer_.maximum()); }
    void setMaxLength(std::int32_t units);
    char32_t passwordChar() const { return PasswordChar_; }
    void setPasswordChar(char32_t character);
    /// What a view shows in place of each unit: a bullet for a character of two.
    char16_t mask() const { return PasswordChar_ < 0x10000 ? static_cast<char16_t>(PasswordChar_) : u'\u25CF'; }
    /// A box of several lines hides nothing.
    bool isPassword() const { return PasswordChar_ != 0 && !Buffer_.multiLine(); }

    // ---- By the user

    /// A key and what it types. False when it meant nothing to the box or its control.
    bool strike(const KeyStroke& stroke);
    /// A character, or a control character, that no key stroke came with.
    bool strikeCharacter(char32_t character, Modifiers modifiers);
    /// Text that an input method has finished, character by character.
    void typeCommitted(std::u16string_view text);

    /// Whether `perform` would do anything. Says nothing about the clipboard.
    bool offers(EditAction action) const;
    /// From a menu.
    void perform(EditAction action) { act(action, 0, false); }
    /// A text that comes from elsewhere than the clipboard, such as a dropped one, in place of the selection.
    void paste(std::u16string_view text);

    /// As the mouse has made it.
    void select(const Selection& selection);
    /// The box has the focus and the caret stands where the mouse put it.
    void pressMouse(MouseButton button);
    /// The left button was released in the box.
    void click();

private:
    bool act(EditAction action, char32_t character, bool extend);
    bool moveCaret(EditAction action, bool extend);
    const TextLines& lines() const;
    bool edit(EditAction action, char32_t character);
    bool cut();
    void copy();
    bool insertPasted(std::u16string_view foreign);
    void tell(bool changed);

    TextBoxListener& Listener_;
    EditSurroundings& Surroundings_;
    EditBuffer Buffer_;
    char32_t PasswordChar_ = 0;
    bool Locked_ = false;
};

}  // namespace kel
