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
    static constexpr std::size_t Kept = 9;

    std::int32_t value = 0;  ///< of the first nine
    std::size_t digits = 0;

    void add(unsigned digit) {
        if (digits++ < Kept) value = value * 10 + static_cast<std::int32_t>(digit);
    }
};

/// Takes more digits of a region, ASCII ones among them, until `group` has so many.
void takeRegionalDigits(std::u16string_view& text, char32_t zero, std::size_t most, DigitGroup& group);

/// Takes the digits in front off `text`, at most so many.
inline DigitGroup takeDigits(std::u16string_view& text, char32_t zero,
                             std::size_t most = std::numeric_limits<std::size_t>::max()) {
    DigitGroup group;
    if (zero != U'0') {
        takeRegionalDigits(text, zero, most, group);
        return group;
    }
    const std::size_t end = std::min(most, text.size());
    std::size_t at = 0;
    for (; at < end; ++at) {
        const unsigned digit = static_cast<unsigned>(text[at]) - u'0';
        if (digit >= NoDigit) break;
        group.add(digit);
    }
    text.remove_prefix(at);
    return group;
}

}  // namespace kel
