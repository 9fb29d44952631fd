#include "values/Coercion.h"

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

#include "values/Calendar.h"
#include "values/Decimal.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr char16_t MinusSign = 0x2212;
constexpr std::u16string_view TrueText = u"True";
constexpr std::u16string_view FalseText = u"False";

constexpr bool isOuterBlank(char16_t unit) {
    return unit == u' ' || (unit >= 0x09 && unit <= 0x0D) || unit == 0x00A0 || unit == 0x202F;
}

std::u16string_view withoutOuterBlanks(std::u16string_view text) {
    while (!text.empty() && isOuterBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isOuterBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// The digits of a number, however many, as they come.
class WrittenDigits {
public:
    void add(int digit, bool isFraction) {
        HasDigits_ = true;
        if (Count_ == 0 && digit == 0) {
            Exponent_ -= isFraction ? 1 : 0;
            return;
        }
        if (Count_ < Kept)
            Digits_[Count_++] = static_cast<char>('0' + digit);
        else if (digit != 0)
            Digits_[Kept - 1] = '1';
        Exponent_ += isFraction ? 0 : 1;
    }

    void scale(std::int64_t powerOfTen) { Exponent_ += powerOfTen; }

    bool hasDigits() const { return HasDigits_; }

    /// Infinity beyond the largest double.
    double value() const { return toDouble({Digits_.data(), Count_}, Exponent_); }

private:
    /// More than are looked at; of the last one, and all after it, counts whether there is one above 0.
    static constexpr std::size_t Kept = 800;

    std::array<char, Kept> Digits_;
    std::size_t Count_ = 0;
    std::int64_t Exponent_ = 0;
    bool HasDigits_ = false;
};

class NumberReader {
public:
    NumberReader(std::u16string_view text, const RegionalSettings& region) : rest_(text), region_(region) {}

    bool read(double& out) {
        const bool isNegative = takeSign();
        WrittenDigits digits;
        takeDigits([&digits](int digit) { digits.add(digit, false); });
        if (take(region_.DecimalSeparator)) takeDigits([&digits](int digit) { digits.add(digit, true); });
        if (!digits.hasDigits() || !takeExponent(digits) || !rest_.empty()) return false;
        const double number = digits.value();
        if (std::isinf(number)) return false;
        out = isNegative && number != 0 ? -number : number;
        return true;
    }

private:
    bool take(std::u16string_view wanted) {
        if (wanted.empty() || rest_.substr(0, wanted.size()) != wanted) return false;
        rest_.remove_prefix(wanted.size());
        return true;
    }

    /// Passes over a sign if there is one; true when it is a minus.
    bool takeSign() {
        if (take(u"+")) return false;
        return take(region_.NegativeSign) || take(u"-") || take({&MinusSign, 1});
    }

    /// The value of the digit in front, -1 for anything else; `units` is what it takes up.
    int digitInFront(std::size_t& units) const {
        if (rest_.empty()) return -1;
        units = 1;
        char32_t point = rest_.front();
        if (point >= U'0' && point <= U'9') return static_cast<int>(point - U'0');
        if (splitsPair(rest_, 1)) {
            units = 2;
            point = 0x10000U + ((rest_[0] & 0x3FFU) << 10) + (rest_[1] & 0x3FFU);
        }
        const char32_t zero = region_.ZeroDigit;
        return point >= zero && point - zero < 10 ? static_cast<int>(point - zero) : -1;
    }

    /// Hands over every digit in front; false when there is none.
    template <class Use>
    bool takeDigits(Use use) {
        bool any = false;
        std::size_t units = 0;
        for (int digit = digitInFront(units); digit >= 0; digit = digitInFront(units)) {
            use(digit);
            rest_.remove_prefix(units);
            any = true;
        }
        return any;
    }

    /// False when an exponent begins and no digits follow.
    bool takeExponent(WrittenDigits& digits) {
        constexpr std::int64_t Enough = std::int64_t{1} << 40;
        if (!take(u"E") && !take(u"e")) return true;
        const bool isNegative = takeSign();
        std::int64_t exponent = 0;
        const bool hasDigits = takeDigits([&exponent](int digit) {
            if (exponent < Enough) exponent = exponent * 10 + digit;
        });
        digits.scale(isNegative ? -exponent : exponent);
        return hasDigits;
    }

    std::u16string_view rest_;
    const RegionalSettings& region_;
};

/// What `Variant` holds as a number; text is read, True is -1, Empty is 0.
CoercionFault toNumber(const Variant& value, const RegionalSettings& region, double& out) {
    return std::visit(
        [&](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Empty>) {
                out = 0;
            } else if constexpr (std::is_same_v<Held, bool>) {
                out = held ? -1 : 0;
            } else if constexpr (std::is_arithmetic_v<Held>) {
                out = held;
            } else if constexpr (std::is_same_v<Held, Date>) {
                out = held.Serial;
            } else if constexpr (std::is_same_v<Held, std::u16string>) {
                if (!readPlainNumber(held, region, out)) return CoercionFault::TypeMismatch;
            } else {
                return CoercionFault::TypeMismatch;
            }
            return CoercionFault::None;
        },
        value);
}

/// Halves go to the even neighbour whatever the processor's rounding is set to.
template <class Integer>
CoercionFault toInteger(const Variant& value, const RegionalSettings& region, Integer& out) {
    double number = 0;
    const CoercionFault fault = toNumber(value, region, number);
    if (fault != CoercionFault::None) return fault;
    if (!std::isfinite(number)) return CoercionFault::Overflow;
    const double rounded = number - std::remainder(number, 1.0);
    if (rounded < std::numeric_limits<Integer>::min() || rounded > std::numeric_limits<Integer>::max()) {
        return CoercionFault::Overflow;
    }
    out = static_cast<Integer>(rounded);
    return CoercionFault::None;
}

std::u16string numberText(double number, const RegionalSettings& region) {
    std::u16string text = shortestNumber(number);
    const std::size_t point = text.find(u'.');
    if (point != std::u16string::npos && region.DecimalSeparator != u".") {
        text.replace(point, 1, region.DecimalSeparator);
    }
    return text;
}

template <class Held>
CoercionFault copyHeld(const Variant& value, Held& out) {
    const Held* held = std::get_if<Held>(&value);
    if (held == nullptr) return CoercionFault::TypeMismatch;
    out = *held;
    return CoercionFault::None;
}

}  // namespace

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, bool& out) {
    if (const auto* text = std::get_if<std::u16string>(&value)) {
        const std::u16string_view word = withoutOuterBlanks(*text);
        const bool isTrue = equalsIgnoringCase(word, TrueText);
        if (isTrue || equalsIgnoringCase(word, FalseText)) {
            out = isTrue;
            return CoercionFault::None;
        }
    }
    double number = 0;
    const CoercionFault fault = toNumber(value, region, number);
    if (fault == CoercionFault::None) out = number != 0;
    return fault;
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, std::int16_t& out) {
    return toInteger(value, region, out);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, std::int32_t& out) {
    return toInteger(value, region, out);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, double& out) {
    return toNumber(value, region, out);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, Date& out) {
    double serial = 0;
    const CoercionFault fault = toNumber(value, region, serial);
    if (fault != CoercionFault::None) return fault;
    if (!isInCalendar(Date{serial})) return CoercionFault::Overflow;
    out.Serial = serial;
    return CoercionFault::None;
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings& region, std::u16string& out) {
    return std::visit(
        [&](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Empty>) {
                out.clear();
            } else if constexpr (std::is_same_v<Held, bool>) {
                out = held ? TrueText : FalseText;
            } else if constexpr (std::is_arithmetic_v<Held>) {
                out = numberText(held, region);
            } else if constexpr (std::is_same_v<Held, Date>) {
                out = numberText(held.Serial, region);
            } else if constexpr (std::is_same_v<Held, std::u16string>) {
                out = held;
            } else {
                return CoercionFault::TypeMismatch;
            }
            return CoercionFault::None;
        },
        value);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings&, StringArray& out) {
    return copyHeld(value, out);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings&, ObjectPtr& out) {
    return copyHeld(value, out);
}

template <>
CoercionFault coerce(const Variant& value, const RegionalSettings&, Variant& out) {
    out = value;
    return CoercionFault::None;
}

std::u16string shortestNumber(double number) {
    constexpr double FirstLong = 1E15;
    constexpr double LastPlain = 1E-5;
    if (number == 0) return u"0";
    if (!std::isfinite(number)) return std::isnan(number) ? u"nan" : number < 0 ? u"-inf" : u"inf";
    const Decimal decimal = shortestDecimal(number);
    std::u16string text = widen(std::to_string(decimal.Digits));
    // Of the first digit, when one stands before the point.
    auto exponent = static_cast<std::int32_t>(text.size()) - 1 + decimal.Exponent;
    text.erase(text.find_last_not_of(u'0') + 1);
    const bool isPlain = std::fabs(number) >= LastPlain && std::fabs(number) < FirstLong;
    if (isPlain && exponent < 0) text.insert(0, static_cast<std::size_t>(-std::exchange(exponent, 0)), u'0');
    const std::size_t whole = isPlain ? static_cast<std::size_t>(exponent) + 1 : 1;
    if (text.size() < whole) text.append(whole - text.size(), u'0');
    if (text.size() > whole) text.insert(whole, 1, u'.');
    if (decimal.Negative) text.insert(0, 1, u'-');
    if (isPlain) return text;
    const std::u16string power = widen(std::to_string(std::abs(exponent)));
    return text + (exponent < 0 ? u"E-" : u"E+") + (power.size() < 2 ? u"0" : u"") + power;
}

bool readPlainNumber(std::u16string_view text, const RegionalSettings& region, double& out) {
    return NumberReader(withoutOuterBlanks(text), region).read(out);
}

}  // namespace kel
