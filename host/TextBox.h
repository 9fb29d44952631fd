#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Keys.h"
#include "host/TextEntry.h"

namespace kel {

enum class EditAction : std::uint8_t;

/// A single-line or multi-line edit box. A line break of a multi-line box is a carriage return and a line feed and
/// counts two. A new box is enabled, visible, unlocked, empty, with `colors::SystemWindow` behind
/// `colors::SystemWindowText`.
class TextBox : public TextEntry {
public:
    /// Shown in place of every character; 0 shows the text.
    virtual char32_t passwordChar() const = 0;
    virtual void setPasswordChar(char32_t character) = 0;

protected:
    using TextEntry::TextEntry;
};

/// What a text box tells its control, as it happens. A handler may do anything to the widget, also move the
/// focus away; it may run host code.
class TextBoxListener {
public:
    /// The text differs from before, by the user or by code.
    virtual void Text1_Change() = 0;
    /// The left mouse button was pressed and released in the box.
    virtual void Text1_Click() = 0;
    /// A key goes down; `KeyCode` set to 0 swallows it.
    virtual void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Text1_KeyPress(char32_t& KeyAscii) = 0;
    /// The user is about to edit the text in this way: by key, from a menu, by a drop.
    virtual void Text1_Edit(EditAction /*Action*/) {}
    /// The user pastes or drops `Text` in the place of the selection; what it is changed to comes instead.
    /// False refuses it: the box stays as it is.
    virtual bool Text1_Paste(std::u16string& Text) = 0;
    virtual void Text1_MouseDown(MouseButton Button) = 0;
    /// Whether the wheel does anything in the box. A box that has no use for it, or not the focus, leaves it to its
    /// surroundings, which it may scroll.
    virtual bool Text1_UsesWheel() = 0;
    /// The wheel was turned over the box while it had the focus; notches away from the user count up.
    virtual void Text1_Wheel(std::int32_t Notches) = 0;
    virtual void Text1_GotFocus() = 0;
    virtual void Text1_LostFocus() = 0;

protected:
    ~TextBoxListener() = default;
};

}  // namespace kel
