#include "values/LongDivision.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace kel {

namespace {

constexpr int DoubleDigits = std::numeric_limits<double>::digits;
constexpr int LowestPower = std::numeric_limits<double>::min_exponent - DoubleDigits;  ///< of two, in any double

/// A whole number of up to four thousand bits, which is more than any double, or the longest decimal that is read,
/// takes up on either side of a division.
class LongNumber {
public:
    explicit LongNumber(std::uint64_t value) {
        for (; value != 0; value >>= LimbBits) Limbs_[at(Used_++)] = static_cast<std::uint32_t>(value);
    }

    int bits() const { return Used_ == 0 ? 0 : Used_ * LimbBits - std::countl_zero(Limbs_[at(Used_ - 1)]); }

    void multiply(std::uint32_t factor, std::uint32_t addend = 0) {
        std::uint64_t over = addend;
        for (int i = 0; i < Used_; ++i) {
            over += std::uint64_t{Limbs_[at(i)]} * factor;
            Limbs_[at(i)] = static_cast<std::uint32_t>(over);
            over >>= LimbBits;
        }
        if (over != 0) Limbs_[at(Used_++)] = static_cast<std::uint32_t>(over);
    }

    void multiplyByPowerOfTen(int power) {
        constexpr int Together = 9;
        for (; power >= Together; power -= Together) multiply(1'000'000'000);
        for (; power > 0; --power) multiply(10);
    }

    void shiftLeft(int places) {
        const int limbs = places / LimbBits;
        if (limbs > 0 && Used_ > 0) {
            std::move_backward(Limbs_.begin(), Limbs_.begin() + Used_, Limbs_.begin() + Used_ + limbs);
            std::fill_n(Limbs_.begin(), limbs, 0U);
            Used_ += limbs;
        }
        multiply(std::uint32_t{1} << (places % LimbBits));
    }

    /// Below 0 where `other` is larger, above where it is smaller.
    int compare(const LongNumber& other) const {
        if (Used_ != other.Used_) return Used_ - other.Used_;
        for (int i = Used_ - 1; i >= 0; --i)
            if (Limbs_[at(i)] != other.Limbs_[at(i)]) return Limbs_[at(i)] < other.Limbs_[at(i)] ? -1 : 1;
        return 0;
    }
    bool isZero() const { return Used_ == 0; }

    void add(const LongNumber& other) {
        std::uint64_t over = 0;
        const int limbs = std::max(Used_, other.Used_);
        for (int i = 0; i < limbs; ++i) {
            over += std::uint64_t{limb(i)} + other.limb(i);
            Limbs_[at(i)] = static_cast<std::uint32_t>(over);
            over >>= LimbBits;
        }
        Used_ = limbs;
        if (over != 0) Limbs_[at(Used_++)] = static_cast<std::uint32_t>(over);
    }

    /// `other` is not larger.
    void subtract(const LongNumber& other) {
        std::int64_t over = 0;
        for (int i = 0; i < Used_; ++i) {
            over += std::int64_t{Limbs_[at(i)]} - other.limb(i);
            Limbs_[at(i)] = static_cast<std::uint32_t>(over);
            over >>= LimbBits;
        }
        while (Used_ > 0 && Limbs_[at(Used_ - 1)] == 0) --Used_;
    }

    /// How often `divisor` goes into it, which is a few times at most; what is left stays.
    unsigned divide(const LongNumber& divisor) {
        unsigned times = 0;
        for (; compare(divisor) >= 0; ++times) subtract(divisor);
        return times;
    }

private:
    static constexpr int LimbBits = 32;
    static constexpr int MostLimbs = 132;

    static std::size_t at(int limb) { return static_cast<std::size_t>(limb); }
    std::uint32_t limb(int i) const { return i < Used_ ? Limbs_[at(i)] : 0; }

    std::array<std::uint32_t, MostLimbs> Limbs_{};  ///< lowest first
    int Used_ = 0;                                  ///< the last of them is not 0
};

/// `quotient` times two to the power of `exponent`, and a little more where there is a `rest`.
double roundedToDouble(std::uint64_t quotient, int exponent, bool rest) {
    const int unit = std::max(static_cast<int>(std::bit_width(quotient)) - DoubleDigits + exponent, LowestPower);
    const int surplus = unit - exponent;
    if (surplus > std::numeric_limits<std::uint64_t>::digits - 1) return 0;
    const std::uint64_t half = std::uint64_t{1} << (surplus - 1);
    const std::uint64_t cut = quotient & (2 * half - 1);
    quotient >>= surplus;
    if (cut > half || (cut == half && (rest || quotient % 2 != 0))) ++quotient;
    return std::ldexp(static_cast<double>(quotient), unit);
}

}  // namespace

/// All decimals between the middles to the neighbouring doubles read back as it. Its digits are divided off until what
/// is left is no more than the way to one of the middles.
Decimal shortestByDivision(double size) {
    int power = 0;
    const auto whole = static_cast<std::uint64_t>(std::ldexp(std::frexp(size, &power), DoubleDigits));
    const int cut = std::max(LowestPower - (power - DoubleDigits), 0);  // the smallest doubles have fewer digits
    const std::uint64_t digits = whole >> cut;
    power += cut - DoubleDigits;
    // Above a power of two the doubles stand twice as far apart as below it.
    const bool uneven = digits == std::uint64_t{1} << (DoubleDigits - 1) && power > LowestPower;
    const bool even = digits % 2 == 0;  // the middles themselves read back as an even one

    // In parts of half, or for an uneven one a quarter, of what its last digit counts.
    LongNumber rest(digits << (uneven ? 2 : 1));
    LongNumber below(1);
    LongNumber divisor(uneven ? 4 : 2);
    for (LongNumber* const each : {&rest, &below})
        if (power > 0) each->shiftLeft(power);
    if (power < 0) divisor.shiftLeft(-power);
    const auto reaches = [&](LongNumber sum, const LongNumber& limit) {
        if (uneven) sum.add(below);
        sum.add(below);
        const int difference = sum.compare(limit);
        return even ? difference >= 0 : difference > 0;
    };

    auto exponent = static_cast<std::int32_t>(std::floor(std::log10(size)));
    if (exponent >= 0) divisor.multiplyByPowerOfTen(exponent + 1);
    for (LongNumber* const each : {&rest, &below}) each->multiplyByPowerOfTen(std::max(-exponent - 1, 0));
    // The logarithm may be beside a power of ten, and the next shorter decimal above it.
    if (reaches(rest, divisor)) {
        divisor.multiply(10);
        ++exponent;
    }

    Decimal decimal;
    for (bool low = false, high = false; !low && !high;) {
        rest.multiply(10);
        below.multiply(10);
        unsigned digit = rest.divide(divisor);
        const int difference = rest.compare(below);
        low = even ? difference <= 0 : difference < 0;
        high = reaches(rest, divisor);
        if (high && low) {
            LongNumber twice = rest;
            twice.multiply(2);
            const int beside = twice.compare(divisor);
            high = beside > 0 || (beside == 0 && digit % 2 != 0);
        }
        if (high) ++digit;
        decimal.Digits = decimal.Digits * 10 + digit;
        decimal.Exponent = exponent--;
    }
    return decimal;
}

double nearestByDivision(std::string_view digits, std::int32_t exponent) {
    LongNumber rest(0);
    for (const char digit : digits) rest.multiply(10, static_cast<std::uint32_t>(digit - '0'));
    LongNumber divisor(1);
    const auto power = exponent - static_cast<std::int32_t>(digits.size());
    (power > 0 ? rest : divisor).multiplyByPowerOfTen(std::abs(power));

    // The quotient shall have one digit more than a double, or two.
    constexpr int QuotientDigits = DoubleDigits + 2;
    const int places = divisor.bits() - rest.bits() + QuotientDigits - 1;
    (places > 0 ? rest : divisor).shiftLeft(std::abs(places));
    divisor.shiftLeft(QuotientDigits - 1);
    std::uint64_t quotient = 0;
    for (int i = 0; i < QuotientDigits; ++i) {
        quotient = quotient * 2 + rest.divide(divisor);
        rest.multiply(2);
    }
    return roundedToDouble(quotient, -places, !rest.isZero());
}

}  // namespace kel
