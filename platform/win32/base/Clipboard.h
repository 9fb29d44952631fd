#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace kel::win32 {

/// The system's clipboard. While another program keeps it closed, what was last put here stands in for it.
class Clipboard {
public:
    /// `window` asks.
    std::u16string text(HWND window) const;
    void setText(HWND window, std::u16string_view text);

private:
    std::u16string Kept_;  ///< what the system did not take
    DWORD KeptAt_ = 0;     ///< how often the clipboard had changed by then
};

}  // namespace kel::win32
