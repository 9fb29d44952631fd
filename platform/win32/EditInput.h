#pragma once

#include "host/editing/TextBoxEditor.h"
#include "platform/win32/ChildField.h"
#include "platform/win32/EditView.h"

namespace kel::win32 {

/// What Ctrl and Backspace make; no character to type.
inline constexpr char16_t DeleteCharacter = 127;

/// A field whose text stands in an edit window, as that window's input knows it.
class EditedField : public ChildField {
public:
    virtual HFONT fontHandle() const = 0;

    /// Where the window shows the caret at `position`, brought into view; past the end is the end.
    virtual POINT showPosition(std::int32_t position) = 0;

    // ---- Sent to the window by another program; the same as by code.

    virtual void textSent(std::u16string_view text) = 0;
    virtual void limitSent(std::int32_t units) = 0;
    virtual void lockSent(bool locked) = 0;
    virtual void passwordCharSent(char16_t character) = 0;

protected:
    ~EditedField() = default;
};

/// What comes to an edit window, keys, mouse, menus, input methods and other programs, on its way to the editor.
class EditInput {
public:
    /// All of them outlive the input.
    EditInput(ControlFrame& frame, EditedField& field, EditView& view, TextBoxEditor& editor)
        : Frame_(frame), Field_(field), View_(view), Editor_(editor) {}

    LRESULT handle(UINT message, WPARAM wide, LPARAM data);

    /// The system's edit window says that its text is another one.
    void windowChanged();

    /// -1 is no selection as a start, and the end of the text as an end.
    void selectFromOutside(WPARAM start, LPARAM end);

    /// Without what the field itself knows better.
    bool wantsKey(const KeyStroke& stroke) const;

    POINT showPosition(std::int32_t position) const;

private:
    const EditBuffer& buffer() const { return Editor_.buffer(); }
    HWND window() const { return View_.window(); }

    bool handleText(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleKey(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleInputMethod(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    bool handleMouse(UINT message, WPARAM wide, LPARAM data, LRESULT& result);
    LRESULT defaultFor(UINT message, WPARAM wide, LPARAM data) const;

    LRESULT dialogCode(const MSG* asked) const;
    bool keyDown(std::int16_t code, LPARAM data);
    void unitTyped(char16_t unit);
    void placeInputMethod() const;
    void takeCommitted();
    void pressed(UINT message, WPARAM wide, LPARAM data);
    LRESULT wheelTurned(WPARAM wide, LPARAM data);
    void readSelection();

    ControlFrame& Frame_;
    EditedField& Field_;
    EditView& View_;
    TextBoxEditor& Editor_;
    char16_t FirstHalf_ = 0;  ///< of a pair whose second half has not come yet
    int WheelRest_ = 0;       ///< turned so far towards the next notch
    bool LeftPressed_ = false;
};

/// The characters that the key press in hand has made, off the queue. They come with the press's own data.
std::u16string takeCharacters(HWND window, LPARAM pressData);

/// The modifier keys that are down for the message being handled.
Modifiers modifiersDown();

}  // namespace kel::win32
