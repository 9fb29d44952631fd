#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "host/widgets/TextEntry.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

inline constexpr std::int32_t NoLimit = 0x7FFFFFFE;  ///< on the length of a text, as the edit window says it

/// The system's edit window, showing a text: what stands in it, where it breaks the lines, and what it makes of them by
/// itself, which it tells the text. It decides nothing. What anybody wants of the window comes to its handler first;
/// `base` is what the system would do.
class EditView final : public TextLines {
public:
    explicit EditView(TextEntry& entry) : Entry_(entry) {}
    EditView(const EditView&) = delete;
    EditView& operator=(const EditView&) = delete;

    HWND window() const { return Window_; }

    /// At `place` in `parent`; shows nothing yet. `handler` outlives the window.
    void create(HWND parent, const RECT& place, DWORD style, WindowHandler& handler);
    /// Takes an empty edit window that belongs to another one, such as that of a combo box.
    void attach(HWND edit, WindowHandler& handler);
    /// The window is being made and hears its first messages; nullptr when it has been destroyed.
    void adopt(HWND window) { Window_ = window; }

    LRESULT base(UINT message, WPARAM wide = 0, LPARAM data = 0) const;

    /// Makes the window show the selection, and the text where that has changed.
    void show(bool textToo);
    /// The window has another selection by itself.
    void readSelection();
    /// Somebody else has put a text into the window past us.
    void readText();

    /// While the view itself changes its window.
    bool changing() const { return Changing_ > 0; }

    /// The place of the caret in the window, once `position` has been brought into view; past an end is that end.
    POINT showPosition(std::int32_t position);
    /// The window breaks long lines at its edge.
    TextLine lineAt(std::size_t position) const override;

    /// Upper left corner of the text.
    POINT textCorner() const;

private:
    void showNothingYet();
    void replace(std::size_t from, std::size_t to, std::u16string_view text);
    void showText(std::u16string_view text);
    void showSelection(const Selection& selection);
    std::u16string windowText() const;
    Selection windowSelection() const;
    std::size_t startOfLine(LRESULT line) const;

    TextEntry& Entry_;
    HWND Window_ = nullptr;
    WNDPROC Base_ = nullptr;
    std::u16string Shown_;
    Selection ShownSelection_;
    std::int16_t Changing_ = 0;
    bool IsTextOld_ = false;
};

/// Where in the text a point of an edit window is that shows it.
std::size_t positionAt(HWND edit, POINT place, const TextEntry& entry);

/// `text` unit by unit as the edit window can show it: half line breaks and zeros as blanks.
std::u16string displayed(std::u16string_view text, bool multiLine);

}  // namespace kel::win32
