#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "host/editing/EditBuffer.h"
#include "platform/win32/WindowClass.h"

namespace kel::win32 {

/// What is another text in one place than before.
struct TextChange {
    std::size_t at = 0;
    std::size_t removed = 0;
    std::u16string inserted;
};

/// The system's edit window as the view of a buffer: it shows what the buffer holds and decides nothing. What
/// anybody wants of the window comes to its handler first; `base` is what the system would do.
class EditView {
public:
    explicit EditView(bool multiLine) : MultiLine_(multiLine) {}
    ~EditView() { destroy(); }
    EditView(const EditView&) = delete;
    EditView& operator=(const EditView&) = delete;

    HWND window() const { return Window_; }

    /// Hidden, at `place` in `parent`; shows nothing yet. `handler` outlives the window.
    void create(HWND parent, const RECT& place, WindowHandler& handler);
    /// Takes an empty edit window that belongs to another one, such as that of a combo box.
    void attach(HWND edit, WindowHandler& handler);
    void destroy();
    /// The window is being made, and hears its first messages.
    void adopt(HWND window) { Window_ = window; }
    /// The window has been destroyed.
    void forget() { Window_ = nullptr; }

    LRESULT base(UINT message, WPARAM wide = 0, LPARAM data = 0) const;

    /// Makes the window show the buffer's text and selection.
    void show(const EditBuffer& buffer);

    /// What the window has selected, its ends in order.
    Selection selection() const;
    /// The window has made this selection by itself.
    void selectionIs(const Selection& selection) { ShownSelection_ = selection; }
    /// What somebody else has made of the text in the window; it counts as shown from now on.
    TextChange takeForeignChange();

    /// While the view itself changes its window.
    bool changing() const { return Changing_; }

    /// The place of the caret in the window, once `position` has been brought into view.
    POINT showPosition(std::size_t position);
    /// Of the line on the screen that `position` is in; of the one below it, 0 where there is none.
    std::size_t lineStart(std::size_t position) const;
    std::size_t nextLineStart(std::size_t position) const;

    /// Upper edge of the text.
    int textTop() const;

private:
    void replace(std::size_t from, std::size_t to, std::u16string_view text, bool undoable);
    void showText(std::u16string_view text, const EditBuffer& buffer);
    std::u16string windowText() const;
    void showSelection(const Selection& selection);

    void showNothingYet();

    HWND Window_ = nullptr;
    WNDPROC Base_ = nullptr;
    std::u16string Shown_;
    Selection ShownSelection_;
    bool MultiLine_;
    bool Changing_ = false;
};

/// `text` unit by unit as the edit window can show it: half line breaks and zeros as blanks.
std::u16string displayed(std::u16string_view text, bool multiLine);
/// Whether it can show it as it is.
bool isDisplayable(std::u16string_view text, bool multiLine);

}  // namespace kel::win32
