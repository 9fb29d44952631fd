#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace kel::win32::ole {

/// Where something stands in a dialog, in its own units, which grow with its font.
struct DialogBox {
    short left = 0;
    short top = 0;
    short width = 0;
    short height = 0;
};

/// A dialog that stands in a larger one, made as it is needed; the system's dialogs have their font and scaling.
class DialogTemplate {
public:
    DialogTemplate(short width, short height);

    /// A visible child of this window class. Its mnemonic, in a label, is that of the next one.
    void add(std::wstring_view windowClass, std::wstring_view text, DWORD style, DialogBox box, DWORD id,
             DWORD extendedStyle = 0);

    /// nullptr where the system has no window to give.
    HWND create(HWND parent, DLGPROC procedure, LPARAM argument);

private:
    void word(unsigned value) { Words_.push_back(static_cast<WORD>(value)); }
    void doubleWord(DWORD value);
    void place(const DialogBox& box);
    void text(std::wstring_view value);

    std::vector<WORD> Words_;
};

/// What stands in an editor.
std::u16string textOf(HWND editor);

}  // namespace kel::win32::ole
