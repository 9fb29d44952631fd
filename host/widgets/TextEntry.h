#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/editing/EditBuffer.h"
#include "host/widgets/Widget.h"

namespace kel {

/// What a box with a text tells, as it happens. A handler may do anything to the widget, also move the focus away; it
/// may run host code.
class TextBoxListener {
public:
    /// The text differs from before, by the user or by code.
    virtual void Text1_Change() = 0;
    /// The same by an edit of the user's; comes after `Text1_Change`.
    virtual void Text1_Edited() {}
    /// The left mouse button was pressed and released in the box.
    virtual void Text1_Click() = 0;
    /// A key goes down; `KeyCode` set to 0 swallows it.
    virtual void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Text1_KeyPress(char32_t& KeyAscii) = 0;
    /// The user is about to edit the text in this way: by key, from a menu, by a drop. False: it stays as it is.
    virtual bool Text1_Edit(EditAction /*Action*/) { return true; }
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

/// A mouse button that goes down over a text.
struct MousePress {
    MouseButton button = MouseButton::Left;
    std::int32_t position = 0;  ///< in the text; may be past either end
    int clicks = 1;             ///< two select a word, three all of a line
    bool extends = false;       ///< the selection reaches to here
};

/// A widget with a text that can be edited, and everything that keys, characters, input methods, mouse, menus, drops
/// and other programs do to it. Positions and lengths count UTF-16 units. In a text of several lines a break is a
/// carriage return and a line feed and counts two.
class TextEntry : public FieldWidget {
public:
    bool multiLine() const { return Buffer_.multiLine(); }

    /// Valid until the text changes.
    const std::u16string& text() const { return Buffer_.text(); }
    /// Puts a text, of any length, and the caret to 0. Notifies a change when it differs from the old one.
    virtual void setText(std::u16string_view text) { tell(Buffer_.put(text)); }
    std::int32_t textLength() const { return static_cast<std::int32_t>(text().size()); }

    std::int32_t selStart() const { return static_cast<std::int32_t>(Buffer_.selection().start()); }
    /// Drops the selection. A position past the end is the end.
    void setSelStart(std::int32_t position);
    std::int32_t selLength() const { return static_cast<std::int32_t>(Buffer_.selection().length()); }
    /// Selects from the selection's start; cut at the end of the text.
    void setSelLength(std::int32_t length);
    std::u16string selText() const { return std::u16string(Buffer_.selectedText()); }
    /// Replaces the selection as typing would, caret after it, undo kept; the maximum length does not bind.
    void setSelText(std::u16string_view text) { tell(Buffer_.insert(text)); }

    bool locked() const { return Locked_; }
    void setLocked(bool locked) { change(Locked_, locked, Change::Locked); }

    /// Binds typing and pasting, not `setText`; 0 is no limit.
    std::int32_t maxLength() const { return static_cast<std::int32_t>(Buffer_.maximum()); }
    void setMaxLength(std::int32_t units);

    // ---- For views

    const EditBuffer& buffer() const { return Buffer_; }
    const Selection& selection() const { return Buffer_.selection(); }
    /// A box of several lines hides nothing.
    bool isPassword() const { return PasswordChar_ != 0 && !multiLine(); }
    /// What stands for each unit of a password: a bullet for a character of two.
    char16_t mask() const { return PasswordChar_ < 0x10000 ? static_cast<char16_t>(PasswordChar_) : u'\u25CF'; }
    /// The text, or as much of its mask.
    std::u16string shownText() const { return isPassword() ? std::u16string(text().size(), mask()) : text(); }

    // ---- What a person does

    bool strike(const KeyStroke& stroke) override;
    /// A key of a rich layout may give several characters: those after the first.
    bool strike(const KeyStroke& stroke, std::u16string_view further);
    /// A character, or a control character, that no key stroke came with.
    bool strikeCharacter(char32_t character, Modifiers modifiers);
    /// Text that an input method has finished, or the further characters of a key, character by character.
    void typeCommitted(std::u16string_view text);
    /// What an input method puts in the place of a part of the text, which begins so many units from the caret.
    void commitOver(std::int32_t start, std::int32_t length, std::u16string_view text);

    /// Whether a shortcut of the window with this key would take something away from the box.
    virtual bool claims(const KeyStroke& stroke) const { return claimsKey(stroke, Locked_); }
    /// Whether `perform` would do anything.
    bool offers(EditAction action) const;
    /// From a menu.
    void perform(EditAction action);
    /// A text that comes from elsewhere than the clipboard in place of the selection.
    void paste(std::u16string_view text);
    /// The same, where no rule of the control's binds.
    void replaceSelection(std::u16string_view text);
    /// Assistive technology, or whoever else has got hold of the text, puts `text` from `start` to `end`. It comes in
    /// as a paste does, or is erased as by a key: by the control's rules and as one step to undo.
    void write(std::size_t start, std::size_t end, std::u16string_view text);
    void select(const Selection& selection);

    /// The box has the focus.
    void press(const MousePress& press);
    /// It is in what is selected, which may be dragged elsewhere. Let go where it is, it puts the caret there instead.
    bool mayDrag(const MousePress& press) const;
    /// A button goes down over a view that keeps caret and selection by itself, and has told of them. The second of
    /// two presses is no click of its own.
    void pressMouse(MouseButton button, int clicks = 1);
    /// The mouse moves on with the left button down: the selection reaches to there.
    void dragTo(std::int32_t position);
    /// The left button comes up; what had been pressed in the box and is let go over it is a click.
    void releaseMouse(bool inside);
    void click(std::int32_t position) override;
    void clickAgain(std::int32_t position) override;
    void rightClick() override { pressMouse(MouseButton::Right); }

    /// In fractions of a notch, away from the user counting up. Whether it was turned for this box, which has the
    /// focus.
    static constexpr std::int32_t WheelNotch = 120;
    bool turnWheelBy(std::int32_t turned);
    void turnWheel(std::int32_t notches) override { turnWheelBy(notches * WheelNotch); }

    /// Text from elsewhere, when the box has taken the focus.
    bool takesDrop() const { return !Locked_ && takesInput(); }
    void drop(std::int32_t position, std::u16string_view text) override;
    /// What is selected is dragged to another place in the text.
    void moveSelection(std::size_t place);

    void gotFocus() override;
    void lostFocus() override;

    TextView* view() const override = 0;

protected:
    /// `listener` outlives the box, and is not told anything while it is being made.
    TextEntry(WidgetHost& host, TextBoxListener& listener, bool multiLine)
        : FieldWidget(host), Listener_(listener), Buffer_(multiLine) {}

    char32_t shownPasswordChar() const { return PasswordChar_; }
    void hideBy(char32_t character);

private:
    bool act(EditAction action, char32_t character, bool extend);
    bool moveCaret(EditAction action, bool extend);
    EditAction inReadingOrder(EditAction action) const;
    const TextLines& lines() const;
    std::ptrdiff_t linesOfPage() const;
    bool edit(EditAction action, char32_t character);
    bool cut();
    void copy();
    void selectClicked(int clicks);
    bool insertPasted(std::u16string_view foreign);
    void tell(bool changed);
    void tellEdited(bool changed);

    TextBoxListener& Listener_;
    EditBuffer Buffer_;
    char32_t PasswordChar_ = 0;
    std::int32_t WheelRest_ = 0;  ///< turned so far towards the next notch
    bool Locked_ = false;
    bool LeftPressed_ = false;
};

}  // namespace kel
