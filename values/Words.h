#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "values/Text.h"

/// What words are made of, in any script.
namespace kel {

/// Letters, the marks that go with them, and digits: all that is no blank, punctuation or symbol. Half a
/// surrogate pair counts too, as what is written in pairs are mostly rare letters.
bool isWordUnitBeyondAscii(char16_t unit);
char16_t plainLetterBeyondAscii(char16_t unit);

namespace detail {

inline constexpr std::array<bool, 0x80> AsciiWordUnits = [] {
    std::array<bool, 0x80> units{};
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        const std::size_t lower = unit | 0x20;
        units[unit] = (lower >= 'a' && lower <= 'z') || (unit >= '0' && unit <= '9');
    }
    return units;
}();

}  // namespace detail

inline bool isWordUnit(char16_t unit) {
    return unit < detail::AsciiWordUnits.size() ? detail::AsciiWordUnits[unit] : isWordUnitBeyondAscii(unit);
}

/// The letter that stands for this one when case and accents of Latin, Greek and Cyrillic are left aside; any
/// other unit itself. "É", "é" and "E" are all "e".
inline char16_t plainLetter(char16_t unit) {
    return unit < detail::AsciiWordUnits.size() ? toLowerAscii(unit) : plainLetterBeyondAscii(unit);
}

/// Takes what is no word unit off the front.
inline void skipSeparators(std::u16string_view& text) {
    std::size_t at = 0;
    while (at < text.size() && !isWordUnit(text[at])) ++at;
    text.remove_prefix(at);
}

/// Whether `text` begins with `wanted`, case and accents aside.
bool beginsWithLetters(std::u16string_view text, std::u16string_view wanted);

}  // namespace kel
