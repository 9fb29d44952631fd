#include "values/PrintedDigits.h"

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace kel {

namespace {

/// Correctly rounded to so many digits after the first.
Decimal printed(double size, int precision) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*e", precision, size);
    Decimal decimal;
    const char* at = text;
    // Whatever the program's locale has for a point is passed over.
    for (; *at != 'e'; ++at)
        if (*at >= '0' && *at <= '9') decimal.Digits = decimal.Digits * 10 + static_cast<std::uint64_t>(*at - '0');
    decimal.Exponent = static_cast<std::int32_t>(std::strtol(at + 1, nullptr, 10)) - precision;
    return decimal;
}

}  // namespace

Decimal printedDecimal(double size) {
    constexpr int SafeDigits = std::numeric_limits<double>::digits10;
    constexpr int MostDigits = std::numeric_limits<double>::max_digits10;
    // Any decimal of up to so many digits comes back from a double, so that there is no shorter one to look for; but
    // the smallest doubles have fewer.
    const int first = size < std::numeric_limits<double>::min() ? 1 : SafeDigits;
    for (int digits = first; digits < MostDigits; ++digits) {
        Decimal decimal = printed(size, digits - 1);
        if (toDouble(decimal) == size) return decimal;
        // Above a power of two the doubles stand twice as far apart as below it: the next decimal may read back where
        // the nearest, on the other side, does not.
        ++decimal.Digits;
        if (toDouble(decimal) == size) return decimal;
    }
    return printed(size, MostDigits - 1);
}

}  // namespace kel
