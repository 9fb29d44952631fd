#pragma once

#include <windows.h>

#include <string>

namespace kel::win32 {

/// What `window` shows inside its frame, as the bytes of a PNG file; empty when that cannot be had.
std::string pictureOf(HWND window);

}  // namespace kel::win32
