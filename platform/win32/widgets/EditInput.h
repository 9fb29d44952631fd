#pragma once

#include <optional>

#include "host/editing/ClickCounter.h"
#include "platform/win32/widgets/EditView.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

/// What comes to an edit window, keys, mouse, menus, input methods and other programs, on its way to the text.
class EditInput {
public:
    /// All of them outlive the input.
    EditInput(ControlFrame& frame, WindowedField& field, EditView& view, TextEntry& entry)
        : Frame_(frame), Field_(field), View_(view), Entry_(entry) {}

    LRESULT handle(UINT message, WPARAM wide, LPARAM data);

private:
    HWND window() const { return View_.window(); }

    void selectFromOutside(WPARAM start, LPARAM end);
    /// None where the message is of another kind.
    using Answer = std::optional<LRESULT>;
    Answer handleText(UINT message, WPARAM wide, LPARAM data);
    Answer handleKey(UINT message, WPARAM wide, LPARAM data);
    Answer handleInputMethod(UINT message, WPARAM wide, LPARAM data);
    Answer handleMouse(UINT message, WPARAM wide, LPARAM data);
    LRESULT defaultFor(UINT message, WPARAM wide, LPARAM data) const;

    LRESULT dialogCode(const MSG* asked) const;
    bool keyDown(std::int16_t code, LPARAM data);
    void unitTyped(char16_t unit);
    void placeInputMethod() const;
    void takeCommitted();
    void pressed(UINT message, WPARAM wide, LPARAM data);
    /// That a press of a button is, with those before it: the second selects a word, the third a line.
    int clicksOf(UINT message, POINT place);
    void released(POINT place);
    LRESULT wheelTurned(WPARAM wide, LPARAM data);

    ControlFrame& Frame_;
    WindowedField& Field_;
    EditView& View_;
    TextEntry& Entry_;
    ClickCounter Clicks_;
    char16_t FirstHalf_ = 0;  ///< of a pair whose second half has not come yet
};

/// Whether an edit window wants a key that its host would otherwise take for itself.
bool wantsKey(const TextEntry& entry, const KeyStroke& stroke);

/// The text that a message carries; none is empty.
std::u16string textIn(LPARAM data);

/// The characters that the key press in hand has made, off the queue. They come with the press's own data.
std::u16string takeCharacters(HWND window, LPARAM pressData);

/// The modifier keys that are down for the message being handled.
Modifiers modifiersDown();

}  // namespace kel::win32
