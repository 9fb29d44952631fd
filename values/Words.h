#pragma once

#include <string_view>

#include "values/Text.h"

/// What words are made of, in any script.
namespace kel {

/// Letters, the marks that go with them, and digits: all that is no blank, punctuation or symbol. Half a
/// surrogate pair counts too, as what is written in pairs are mostly rare letters.
bool isWordUnitBeyondAscii(char16_t unit);
inline bool isWordUnit(char16_t unit) {
    if (unit >= 0x80) return isWordUnitBeyondAscii(unit);
    const auto letter = static_cast<unsigned>((unit | 0x20) - u'a');
    const auto digit = static_cast<unsigned>(unit - u'0');
    return letter < 26 || digit < 10;
}

/// The letter that stands for this one when case and accents of Latin, Greek and Cyrillic are left aside; any
/// other unit itself. "É", "é" and "E" are all "e".
char16_t plainLetter(char16_t unit);

/// Takes what is no word unit off the front.
inline void skipSeparators(std::u16string_view& text) {
    while (!text.empty() && !isWordUnit(text.front())) text.remove_prefix(1);
}

/// Whether `text` begins with `wanted`, case and accents aside.
bool beginsWithLetters(std::u16string_view text, std::u16string_view wanted);

}  // namespace kel
