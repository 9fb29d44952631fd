#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "values/Text.h"

namespace kel {

inline constexpr unsigned NoDigit = 10;

/// The value of the digit that begins `text`, one of ASCII or one of the ten from `zero` on, and `NoDigit` when
/// none does; `units` is what it takes up.
inline unsigned digitIn(std::u16string_view text, char32_t zero, std::size_t& units) {
    units = 1;
    if (text.empty()) return NoDigit;
    const auto ascii = static_cast<unsigned>(text.front()) - u'0';
    if (ascii < NoDigit || zero == U'0') return std::min(ascii, NoDigit);
    const std::size_t before = text.size();
    const char32_t regional = takeCodePoint(text) - zero;
    units = before - text.size();
    return static_cast<unsigned>(std::min<char32_t>(regional, NoDigit));
}

inline bool beginsWithDigit(std::u16string_view text, char32_t zero) {
    std::size_t units = 0;
    return digitIn(text, zero, units) != NoDigit;
}

/// Digits in a row, as they stand in a date or time.
struct DigitGroup {
    std::int32_t value = 0;  ///< of the first nine
    std::size_t digits = 0;
};

/// Takes the digits in front off `text`, at most so many.
inline DigitGroup takeDigits(std::u16string_view& text, char32_t zero,
                             std::size_t most = std::numeric_limits<std::size_t>::max()) {
    constexpr std::size_t Kept = 9;
    DigitGroup group;
    const auto add = [&group](unsigned digit) {
        if (group.digits < Kept) group.value = group.value * 10 + static_cast<std::int32_t>(digit);
        ++group.digits;
    };
    std::size_t at = 0;
    for (const std::size_t end = std::min(most, text.size()); at < end; ++at) {
        const unsigned digit = static_cast<unsigned>(text[at]) - u'0';
        if (digit >= NoDigit) break;
        add(digit);
    }
    text.remove_prefix(at);
    if (zero == U'0') return group;
    std::size_t units = 0;
    for (unsigned digit = digitIn(text, zero, units); digit != NoDigit && group.digits < most;
         digit = digitIn(text, zero, units)) {
        add(digit);
        text.remove_prefix(units);
    }
    return group;
}

}  // namespace kel
