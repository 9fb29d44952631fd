#pragma once

#include <cstdint>
#include <string_view>

/// Decimal arithmetic on the numbers that people see: a double stands for the shortest decimal text that
/// reads back as it, so that 1.005 is one and five thousandths and not the binary fraction a little below.
namespace kel {

/// ±Digits times ten to the power of Exponent.
struct Decimal {
    std::uint64_t Digits = 0;
    std::int32_t Exponent = 0;
    bool Negative = false;
};

/// A number that can be shown and calculated with: infinities are the largest double of their sign, and
/// what is not a number is 0.
double toFinite(double number);

/// The shortest decimal of `number`, made finite; at most 17 digits, trailing zeros may remain. Never a
/// negative zero.
Decimal shortestDecimal(double number);

/// Rounded to `places` after the point, or in front of it when negative, half away from zero. What rounds
/// to zero has no sign.
Decimal rounded(Decimal decimal, std::int32_t places);

/// The nearest double; infinity beyond the largest one.
double toDouble(const Decimal& decimal);

/// The nearest double to the number that ASCII digits make, however many, as after "0.", times ten to the
/// power of `exponent`; infinity beyond the largest one.
double toDouble(std::string_view digits, std::int64_t exponent);

/// `number` rounded as its shortest text: 1.005 to two places is 1.01, -2.5 to none is -3. Always finite.
double roundDecimally(double number, std::int32_t places);

/// The double nearest to the exact sum of the shortest texts: 1.9 and -0.05 make 1.85. Always
/// finite.
double addDecimally(double left, double right);

}  // namespace kel
