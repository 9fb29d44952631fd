#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "values/RegionalSettings.h"

namespace kel {

/// How a number is written in a region.
struct NumberFormat {
    std::int16_t decimals = 2;  ///< 0 to 16; others are brought into this range
    bool leadingZero = true;    ///< 0.50, not .50; without it and without decimals zero is the empty text
    bool trailingZeros = true;  ///< 12.50, not 12.5; without it a separator with nothing after goes too
    bool group = false;         ///< as the region groups
    bool parentheses = false;   ///< (12.50), not -12.50
    bool typedSymbols = false;  ///< ASCII digits and "-", as keys give them, in place of the region's own
};

/// `number`, made finite and rounded half away from zero on its shortest text. A number shown as zero has no
/// sign and no parentheses.
std::u16string formatNumber(double number, const NumberFormat& format, const RegionalSettings& region);

/// The general form: as many digits as the number needs, no grouping, "12.5" or "1E+20", with the region's
/// decimal separator, ASCII digits and "-".
std::u16string generalNumber(double number, const RegionalSettings& region);

inline constexpr std::int16_t MostDecimals = 16;

/// The region's symbols; the plain ones where settings have none.
std::u16string_view decimalSeparatorOf(const RegionalSettings& region);
std::u16string_view negativeSignOf(const RegionalSettings& region);

/// Where separators stand between the digits of a whole number.
class DigitGrouping {
public:
    /// No grouping at all.
    DigitGrouping() = default;
    /// The region's; none where its group separator is missing or could be taken for the decimal one.
    explicit DigitGrouping(const RegionalSettings& region);

    bool exists() const { return Primary_ != 0; }
    std::u16string_view separator() const { return Separator_; }
    std::size_t primary() const { return Primary_; }
    std::size_t secondary() const { return Secondary_; }  ///< 0: only the primary group is set off

    /// Separators in a whole number of this many digits; none where the region leaves short numbers alone.
    std::size_t countIn(std::size_t digits) const;
    /// Digits after the separator that is this one from the right, the last being 1.
    std::size_t digitsBehind(std::size_t separator) const { return Primary_ + (separator - 1) * Secondary_; }

private:
    std::u16string_view Separator_;
    std::size_t Primary_ = 0;
    std::size_t Secondary_ = 0;
    std::size_t Minimum_ = 1;
};

}  // namespace kel
