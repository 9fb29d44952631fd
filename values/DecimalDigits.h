#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "values/Decimal.h"

namespace kel {

/// A decimal as a row of digits with a point somewhere in or beside it. Digits outside the row are 0.
class DecimalDigits {
public:
    DecimalDigits(const Decimal& decimal, bool keepsTrailingZeros) : IsNegative_(decimal.Negative) {
        std::uint64_t value = decimal.Digits;
        std::int32_t exponent = decimal.Exponent;
        if (!keepsTrailingZeros) {
            for (; value != 0 && value % 10 == 0; ++exponent) value /= 10;
        }
        const char* const end = std::to_chars(Digits_.data(), Digits_.data() + Digits_.size(), value).ptr;
        Count_ = value == 0 ? 0 : static_cast<std::int32_t>(end - Digits_.data());
        PointAt_ = value == 0 ? 0 : Count_ + exponent;
    }

    bool isNegative() const { return IsNegative_; }
    /// Digits in front of the point, leading zeros not counted.
    std::size_t wholeDigits() const { return static_cast<std::size_t>(std::max(PointAt_, 0)); }
    /// Digits after the point that are there.
    std::size_t fractionDigits() const { return static_cast<std::size_t>(std::max(Count_ - PointAt_, 0)); }

    /// Digits of the row in front of the point; negative when zeros stand between the point and the row.
    std::int32_t pointAt() const { return PointAt_; }

    unsigned wholeDigit(std::size_t index) const { return digitAt(static_cast<std::int32_t>(index)); }
    unsigned fractionDigit(std::size_t index) const { return digitAt(PointAt_ + static_cast<std::int32_t>(index)); }

private:
    unsigned digitAt(std::int32_t at) const {
        if (at < 0 || at >= Count_) return 0;
        return static_cast<unsigned>(Digits_[static_cast<std::size_t>(at)] - '0');
    }

    std::array<char, 20> Digits_;
    std::int32_t Count_ = 0;
    std::int32_t PointAt_ = 0;
    bool IsNegative_;
};

/// Writes a digit of the ten that begin with `zero` at `at`, which has room for two units; gives the place
/// after it.
inline char16_t* putDigit(char16_t* at, char32_t zero, unsigned digit) {
    const char32_t point = zero + digit;
    if (point <= 0xFFFF) {
        *at++ = static_cast<char16_t>(point);
        return at;
    }
    *at++ = static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
    *at++ = static_cast<char16_t>(0xDC00 + (point & 0x3FF));
    return at;
}

}  // namespace kel
