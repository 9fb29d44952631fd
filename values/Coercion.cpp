#include "values/Coercion.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "values/Text.h"

namespace kel {

namespace {

constexpr char16_t MinusSign = 0x2212;
constexpr std::u16string_view TrueText = u"True";
constexpr std::u16string_view FalseText = u"False";

/// Serials of the days of the years 100 to 9999; a time may follow the last day and precede none.
constexpr double FirstSerial = -657434;
constexpr double LastSerial = 2958465;

constexpr bool isOuterBlank(char16_t unit) {
    return unit == u' ' || (unit >= 0x09 && unit <= 0x0D) || unit == 0x00A0 || unit == 0x202F;
}

std::u16string_view withoutOuterBlanks(std::u16string_view text) {
    while (!text.empty() && isOuterBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isOuterBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// Collects decimal digits, however many, and gives the nearest double.
class Decimal {
public:
    void addDigit(int digit, bool isFraction) {
        hasDigits_ = true;
        if (count_ == 0 && digit == 0) {
            exponent_ -= isFraction ? 1 : 0;
            return;
        }
        if (count_ < KeptDigits) {
            text_[Lead + count_++] = static_cast<char>('0' + digit);
        } else {
            isCut_ |= digit != 0;
        }
        exponent_ += isFraction ? 0 : 1;
    }

    void scale(std::int64_t powerOfTen) { exponent_ += powerOfTen; }

    bool hasDigits() const { return hasDigits_; }

    /// False when the number is beyond the largest double. One too small for a double is zero.
    bool toDouble(double& out) {
        if (count_ == 0 || exponent_ < -FarExponent) {
            out = 0;
            return true;
        }
        if (exponent_ > FarExponent) return false;
        const auto [end, error] = std::from_chars(text_.data(), writeTail(), out);
        if (error == std::errc()) return true;
        if (exponent_ > 0) return false;
        out = 0;
        return true;
    }

private:
    /// Rounding to a double looks at no more than 767 digits and at whether something follows them.
    static constexpr std::size_t KeptDigits = 770;
    static constexpr std::size_t Lead = 2;  ///< "0."
    static constexpr std::size_t Tail = 8;  ///< the digit that stands for all that was cut, and "e-1000"
    static constexpr std::int64_t FarExponent = 1000;

    char* writeTail() {
        text_[0] = '0';
        text_[1] = '.';
        char* tail = text_.data() + Lead + count_;
        if (isCut_) *tail++ = '1';
        *tail++ = 'e';
        return std::to_chars(tail, text_.data() + text_.size(), exponent_).ptr;
    }

    std::array<char, Lead + KeptDigits + Tail> text_;  ///< 0.digits
    std::size_t count_ = 0;
    std::int64_t exponent_ = 0;
    bool hasDigits_ = false;
    bool isCut_ = false;
};

class NumberReader {
public:
    NumberReader(std::u16string_view text, const RegionalSettings& region) : rest_(text), region_(region) {}

    bool read(double& out) {
        const bool isNegative = takeSign();
        Decimal decimal;
        takeDigits([&decimal](int digit) { decimal.addDigit(digit, false); });
        if (take(region_.DecimalSeparator)) {
            takeDigits([&decimal](int digit) { decimal.addDigit(digit, true); });
        }
        if (!decimal.hasDigits() || !takeExponent(decimal) || !rest_.empty()) return false;
        double number = 0;
        if (!decimal.toDouble(number)) return false;
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
    bool takeExponent(Decimal& decimal) {
        constexpr std::int64_t Enough = std::int64_t{1} << 40;
        if (!take(u"E") && !take(u"e")) return true;
        const bool isNegative = takeSign();
        std::int64_t exponent = 0;
        const bool hasDigits = takeDigits([&exponent](int digit) {
            if (exponent < Enough) exponent = exponent * 10 + digit;
        });
        decimal.scale(isNegative ? -exponent : exponent);
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
    const bool isInCalendar = serial > FirstSerial - 1 && serial < LastSerial + 1;
    if (!isInCalendar) return CoercionFault::Overflow;
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
    const double size = std::fabs(number);
    const bool isPlain = size >= LastPlain && size < FirstLong;
    std::array<char, 40> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    std::u16string text = widen({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
    const std::size_t exponent = text.find(u'e');
    if (exponent != std::u16string::npos) text[exponent] = u'E';
    return text;
}

bool readPlainNumber(std::u16string_view text, const RegionalSettings& region, double& out) {
    return NumberReader(withoutOuterBlanks(text), region).read(out);
}

}  // namespace kel
