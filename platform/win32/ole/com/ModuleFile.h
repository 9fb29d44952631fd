#pragma once

#include <string>

namespace kel::win32::ole {

/// The file that this code was loaded from.
std::wstring moduleFile();

}  // namespace kel::win32::ole
