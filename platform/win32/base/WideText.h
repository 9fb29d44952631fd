#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Between the library's UTF-16 text and the system's: the same units under another type.
namespace kel::win32 {

inline std::wstring wide(std::u16string_view text) { return {text.begin(), text.end()}; }

inline std::u16string unwiden(std::wstring_view text) { return {text.begin(), text.end()}; }

/// In decimal digits.
template <class Number>
std::wstring wideNumber(Number number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// What a window answers that is asked for its text: as much as fits in `capacity` units with a zero at its end.
/// Returns how much that is.
inline std::size_t copyText(std::u16string_view text, std::size_t capacity, wchar_t* out) {
    if (capacity == 0 || out == nullptr) return 0;
    const std::size_t units = std::min(capacity - 1, text.size());
    std::copy_n(text.begin(), units, out);
    out[units] = L'\0';
    return units;
}

}  // namespace kel::win32
