#pragma once

#include <windows.h>

#include <string>

namespace kel::win32 {

/// Writes what `window` shows inside its frame as a PNG file. False when that cannot be done.
bool savePictureOf(HWND window, const std::string& utf8Path);

}  // namespace kel::win32
