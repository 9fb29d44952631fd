#pragma once

#include <string>
#include <string_view>

/// Between the library's UTF-16 text and the system's: the same units under another type.
namespace kel::win32 {

inline std::wstring wide(std::u16string_view text) { return {text.begin(), text.end()}; }

inline std::u16string unwiden(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace kel::win32
