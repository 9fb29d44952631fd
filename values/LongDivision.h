#pragma once

#include <cstdint>
#include <string_view>

#include "values/Decimal.h"

/// Between doubles and decimals by whole numbers of any length, as on paper: slower than by the standard library's
/// tables, and without them, which are a fifth of a component server.
namespace kel {

/// The shortest decimal that reads back as `size`, and of several the nearest to it. `size` is finite and above 0.
Decimal shortestByDivision(double size);

/// The nearest double, of two the even one, to "0.`digits`" times ten to the power of `exponent`; infinity beyond the
/// largest. There are 1 to `MostDividedDigits` ASCII digits, the first of which is not 0, and the exponent is at most
/// `MostDividedPower`, of either sign.
double nearestByDivision(std::string_view digits, std::int32_t exponent);

inline constexpr std::size_t MostDividedDigits = 780;
inline constexpr std::int32_t MostDividedPower = 400;

}  // namespace kel
