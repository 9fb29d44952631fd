#include "values/Decimal.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "values/LongDivision.h"

namespace kel {

static_assert(FLT_EVAL_METHOD == 0, "all machines must round alike: no more digits than a double has");

namespace {

constexpr double LargestDouble = std::numeric_limits<double>::max();

/// No double lies beyond ten to the power of this, nor, but for zero, below that of its negative.
constexpr std::int64_t FarExponent = 400;

constexpr std::size_t PowersOfTen = 20;
constexpr auto IntegerPowers = [] {
    std::array<std::uint64_t, PowersOfTen> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& slot : powers) {
        slot = power;
        power *= 10;
    }
    return powers;
}();

/// The powers of ten that a double holds exactly.
constexpr std::array<double, 23> ExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// One multiplication or division of exact doubles rounds once, unless the processor calculates wider.
constexpr bool RoundsOnce = FLT_EVAL_METHOD == 0;

/// Up to here a double holds every whole number.
constexpr std::uint64_t LastExactInteger = std::uint64_t{1} << 53;

/// Most numbers that people enter have four decimals at most. All decimals of up to 15 digits are different
/// doubles, so one that gives `size` is its shortest.
bool shortDecimal(double size, Decimal& out) {
    constexpr std::int32_t Places = 4;
    constexpr double Scale = ExactPowers[Places];
    constexpr double Half = 0.5;
    constexpr double FirstLong = 1e15 / Scale;
    if (!RoundsOnce || size >= FirstLong) return false;
    const auto digits = static_cast<std::int64_t>(size * Scale + Half);
    out.Digits = static_cast<std::uint64_t>(digits);
    out.Exponent = -Places;
    return static_cast<double>(digits) / Scale == size;
}

#ifndef KEL_LONG_DIVISION
/// Reads "d.ddde-xx".
Decimal fromScientific(std::string_view text) {
    Decimal decimal;
    std::size_t at = 0;
    for (; text[at] != 'e'; ++at) {
        if (text[at] == '.') continue;
        decimal.Digits = decimal.Digits * 10 + static_cast<std::uint64_t>(text[at] - '0');
    }
    const auto fraction = static_cast<std::int32_t>(at > 1 ? at - 2 : 0);
    if (text[++at] == '+') ++at;
    std::from_chars(text.data() + at, text.data() + text.size(), decimal.Exponent);
    decimal.Exponent -= fraction;
    return decimal;
}
#endif

/// The nearest to "0.`digits`" times ten to the power of `exponent`.
double nearest(std::string_view digits, std::int64_t exponent) {
#ifdef KEL_LONG_DIVISION
    return nearestByDivision(digits, static_cast<std::int32_t>(exponent));
#else
    constexpr std::string_view Lead = "0.";
    std::array<char, Lead.size() + MostDividedDigits + 8> text;
    char* at = std::copy(Lead.begin(), Lead.end(), text.data());
    at = std::copy(digits.begin(), digits.end(), at);
    *at++ = 'e';
    at = std::to_chars(at, text.data() + text.size(), exponent).ptr;
    double number = 0;
    if (std::from_chars(text.data(), at, number).ec == std::errc()) return number;
    return exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
#endif
}

double sizeOf(const Decimal& decimal) {
    if (decimal.Digits == 0) return 0;
    const auto power = static_cast<std::size_t>(std::abs(decimal.Exponent));
    if (RoundsOnce && decimal.Digits <= LastExactInteger && power < ExactPowers.size()) {
        // Signed integers are converted in one instruction.
        const auto digits = static_cast<double>(static_cast<std::int64_t>(decimal.Digits));
        return decimal.Exponent < 0 ? digits / ExactPowers[power] : digits * ExactPowers[power];
    }
    constexpr std::size_t MostDigits = 20;
    std::array<char, MostDigits> text;
    char* const end = std::to_chars(text.data(), text.data() + text.size(), decimal.Digits).ptr;
    const auto count = static_cast<std::size_t>(end - text.data());
    return toDouble({text.data(), count}, decimal.Exponent + static_cast<std::int64_t>(count));
}

/// A sum of decimals digit by digit, wide enough for any two doubles.
class DigitRow {
public:
    explicit DigitRow(std::int32_t lowestExponent) : Lowest_(lowestExponent) {}

    void add(const Decimal& decimal, bool subtracts) {
        auto at = static_cast<std::size_t>(decimal.Exponent - Lowest_);
        for (std::uint64_t rest = decimal.Digits; rest != 0; rest /= 10, ++at) {
            const auto digit = static_cast<std::int8_t>(rest % 10);
            Digits_[at] = static_cast<std::int8_t>(subtracts ? Digits_[at] - digit : Digits_[at] + digit);
        }
        Used_ = std::max(Used_, at + 1);
    }

    /// The sum, which is not negative.
    double toDouble() {
        carry();
        std::array<char, Width> text;
        for (std::size_t at = 0; at < Used_; ++at) text[at] = static_cast<char>('0' + Digits_[Used_ - 1 - at]);
        return kel::toDouble({text.data(), Used_}, Lowest_ + static_cast<std::int64_t>(Used_));
    }

private:
    static constexpr std::size_t Width = 700;

    void carry() {
        int over = 0;
        for (std::size_t at = 0; at < Used_; ++at) {
            const int sum = Digits_[at] + over;
            over = sum < 0 ? -1 : sum / 10;
            Digits_[at] = static_cast<std::int8_t>(sum - over * 10);
        }
    }

    std::array<std::int8_t, Width> Digits_{};  ///< lowest first
    std::size_t Used_ = 0;
    std::int32_t Lowest_;
};

}  // namespace

double toFinite(double number) {
    if (std::isnan(number)) return 0;
    return std::clamp(number, -LargestDouble, LargestDouble);
}

Decimal shortestDecimal(double number) {
    const double size = std::fabs(toFinite(number));
    if (size == 0) return {};
    Decimal decimal;
    if (!shortDecimal(size, decimal)) {
#ifdef KEL_LONG_DIVISION
        decimal = shortestByDivision(size);
#else
        std::array<char, 40> text;
        const auto end = std::to_chars(text.data(), text.data() + text.size(), size, std::chars_format::scientific).ptr;
        decimal = fromScientific({text.data(), static_cast<std::size_t>(end - text.data())});
#endif
    }
    decimal.Negative = number < 0;
    return decimal;
}

Decimal rounded(Decimal decimal, std::int32_t places) {
    const std::int64_t surplus = -static_cast<std::int64_t>(decimal.Exponent) - places;
    if (surplus <= 0) return decimal;
    if (surplus >= static_cast<std::int64_t>(PowersOfTen)) return {};
    const std::uint64_t unit = IntegerPowers[static_cast<std::size_t>(surplus)];
    const std::uint64_t rest = decimal.Digits % unit;
    decimal.Digits = decimal.Digits / unit + (rest >= unit - rest ? 1 : 0);
    decimal.Exponent = -places;
    return decimal.Digits == 0 ? Decimal{} : decimal;
}

double toDouble(const Decimal& decimal) {
    const double size = sizeOf(decimal);
    return decimal.Negative && size != 0 ? -size : size;
}

double toDouble(std::string_view digits, std::int64_t exponent) {
    const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
    digits.remove_prefix(zeros);
    exponent -= static_cast<std::int64_t>(zeros);
    if (digits.empty() || exponent < -FarExponent) return 0;
    if (exponent > FarExponent) return std::numeric_limits<double>::infinity();

    // Rounding to a double looks at no more than 767 digits and at whether something follows them.
    constexpr std::size_t KeptDigits = 770;
    const std::string_view kept = digits.substr(0, KeptDigits);
    if (digits.find_first_not_of('0', kept.size()) == std::string_view::npos) return nearest(kept, exponent);
    std::array<char, KeptDigits + 1> text;
    *std::copy(kept.begin(), kept.end(), text.data()) = '1';
    return nearest({text.data(), text.size()}, exponent);
}

double roundDecimally(double number, std::int32_t places) {
    return toFinite(toDouble(rounded(shortestDecimal(number), places)));
}

double addDecimally(double left, double right) {
    if (std::fabs(left) < std::fabs(right)) std::swap(left, right);
    const Decimal larger = shortestDecimal(left);
    const Decimal smaller = shortestDecimal(right);
    if (smaller.Digits == 0) return toDouble(larger);
    DigitRow sum(std::min(larger.Exponent, smaller.Exponent));
    sum.add(larger, false);
    sum.add(smaller, larger.Negative != smaller.Negative);
    const double size = toFinite(sum.toDouble());
    return larger.Negative && size != 0 ? -size : size;
}

}  // namespace kel
