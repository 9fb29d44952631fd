#pragma once

#include <windows.h>

#include <cstdint>
#include <string_view>

namespace kel::win32 {

/// A modal box in front of the window `owner`; nullptr for the active window. Windows may go while it is up. The
/// focus comes back to where it was.
void showMessageBox(HWND owner, std::u16string_view prompt, std::int32_t style, std::u16string_view title);

}  // namespace kel::win32
