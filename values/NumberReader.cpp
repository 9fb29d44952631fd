#include "values/NumberReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

#include "values/Decimal.h"
#include "values/Digits.h"
#include "values/NumberFormat.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr bool isBlank(char16_t unit) {
    return unit == u' ' || unit == 0x00A0 || unit == 0x202F || unit == 0x2009 || unit == 0x2007;
}

constexpr bool isApostrophe(char16_t unit) { return unit == u'\'' || unit == 0x2019; }

constexpr bool isDirectionMark(char16_t unit) { return unit == 0x200E || unit == 0x200F || unit == 0x061C; }

constexpr bool isPadding(char16_t unit) {
    return isBlank(unit) || (unit >= 0x09 && unit <= 0x0D) || isDirectionMark(unit);
}

bool isAlike(char16_t written, char16_t separator) {
    return (isBlank(separator) && isBlank(written)) || (isApostrophe(separator) && isApostrophe(written));
}

/// Units of the group separator that `text` begins with, else 0.
std::size_t separatorLength(std::u16string_view text, const DigitGrouping& grouping) {
    const std::u16string_view separator = grouping.separator();
    if (text.empty() || !grouping.exists()) return 0;
    const bool isOne =
        text.starts_with(separator) || (separator.size() == 1 && isAlike(text.front(), separator.front()));
    return isOne ? separator.size() : 0;
}

void trim(std::u16string_view& text) {
    while (!text.empty() && isPadding(text.front())) text.remove_prefix(1);
    while (!text.empty() && isPadding(text.back())) text.remove_suffix(1);
}

/// Significant digits as they come: the first 19 as a number, the rest counted.
class DigitSum {
public:
    void addWhole(unsigned digit) {
        if (!takes(digit)) ++Decimal_.Exponent;
    }
    void addFraction(unsigned digit) {
        if (takes(digit)) --Decimal_.Exponent;
    }

    bool isExact() const { return !IsCut_; }
    const Decimal& decimal() const { return Decimal_; }

private:
    static constexpr int MostDigits = 19;

    bool takes(unsigned digit) {
        if (Count_ == MostDigits) {
            IsCut_ |= digit != 0;
            return false;
        }
        Decimal_.Digits = Decimal_.Digits * 10 + digit;
        if (Decimal_.Digits != 0) ++Count_;
        return true;
    }

    Decimal Decimal_;
    int Count_ = 0;
    bool IsCut_ = false;
};

/// The number without sign and parentheses.
class BodyReader {
public:
    BodyReader(std::u16string_view body, const RegionalSettings& region)
        : Rest_(body), Body_(body), Region_(region), Grouping_(region) {}

    /// Nothing when the body is no number; infinity when it is too large.
    std::optional<double> read() {
        const bool hasWhole = takeWhole();
        if (IsMisgrouped_) return std::nullopt;
        bool hasFraction = false;
        if (take(decimalSeparatorOf(Region_))) {
            hasFraction = takeDigits([this](unsigned digit) { Sum_.addFraction(digit); });
        }
        if (!hasWhole && !hasFraction) return std::nullopt;
        const std::size_t written = Body_.size() - Rest_.size();
        std::int64_t exponent = 0;
        if (!takeExponent(exponent) || !Rest_.empty()) return std::nullopt;
        return valueOf(Body_.substr(0, written), exponent);
    }

private:
    bool take(std::u16string_view wanted) {
        if (!Rest_.starts_with(wanted)) return false;
        Rest_.remove_prefix(wanted.size());
        return true;
    }

    unsigned digitIn(std::u16string_view text, std::size_t& units) const {
        return kel::digitIn(text, Region_.ZeroDigit, units);
    }

    template <class Use>
    bool takeDigits(Use use) {
        const std::size_t before = Rest_.size();
        std::size_t units = 0;
        for (unsigned digit = digitIn(Rest_, units); digit < 10; digit = digitIn(Rest_, units)) {
            use(digit);
            Rest_.remove_prefix(units);
        }
        return Rest_.size() != before;
    }

    /// Units of the group separator in front, when a digit follows it; else 0.
    std::size_t separatorInFront() const {
        const std::size_t length = separatorLength(Rest_, Grouping_);
        std::size_t units = 0;
        return length != 0 && digitIn(Rest_.substr(length), units) < 10 ? length : 0;
    }

    bool takeGroup(std::size_t& digits) {
        digits = 0;
        return takeDigits([this, &digits](unsigned digit) {
            Sum_.addWhole(digit);
            ++digits;
        });
    }

    /// The whole part with its separators; true when there is a digit.
    bool takeWhole() {
        std::size_t digits = 0;
        if (!takeGroup(digits)) return false;
        std::size_t length = separatorInFront();
        if (length == 0) return true;
        for (std::size_t groups = 1; length != 0; ++groups) {
            // Between two separators stands a group that is not the last one.
            if (groups > 1 && digits != Grouping_.secondary()) IsMisgrouped_ = true;
            Rest_.remove_prefix(length);
            takeGroup(digits);
            length = separatorInFront();
        }
        if (digits != Grouping_.primary()) IsMisgrouped_ = true;
        return true;
    }

    /// False when an exponent begins and no digits follow.
    bool takeExponent(std::int64_t& exponent) {
        constexpr std::int64_t Enough = std::int64_t{1} << 40;
        if (!take(u"E") && !take(u"e")) return true;
        const bool isNegative = take(u"-") || take(u"\u2212") || take(Region_.NegativeSign);
        if (!isNegative) take(u"+");
        const bool hasDigits = takeDigits([&exponent](unsigned digit) {
            if (exponent < Enough) exponent = exponent * 10 + digit;
        });
        if (isNegative) exponent = -exponent;
        return hasDigits;
    }

    double valueOf(std::u16string_view written, std::int64_t exponent) const {
        const Decimal& decimal = Sum_.decimal();
        if (decimal.Digits == 0) return 0;
        const std::int64_t scale = decimal.Exponent + exponent;
        constexpr std::int64_t Far = std::numeric_limits<std::int32_t>::max();
        if (scale > Far) return std::numeric_limits<double>::infinity();
        if (scale < -Far) return 0;
        if (Sum_.isExact()) return toDouble({decimal.Digits, static_cast<std::int32_t>(scale), false});
        return longValueOf(written, exponent);
    }

    /// More digits than fit a number of 64 bits: as many of them as can matter, read as text.
    double longValueOf(std::u16string_view written, std::int64_t exponent) const {
        constexpr std::size_t Enough = 800;
        std::array<char, Enough + 1> digits;
        std::size_t count = 0;
        bool isFraction = false;
        bool isCut = false;
        std::size_t units = 0;
        for (; !written.empty(); written.remove_prefix(units)) {
            const unsigned digit = digitIn(written, units);
            if (digit > 9) {
                isFraction |= written.starts_with(decimalSeparatorOf(Region_));
                continue;
            }
            if (count != 0 || digit != 0) {
                exponent += isFraction ? 0 : 1;
                if (count < Enough)
                    digits[count++] = static_cast<char>('0' + digit);
                else
                    isCut |= digit != 0;
            } else if (isFraction) {
                --exponent;
            }
        }
        if (isCut) digits[count++] = '1';
        return toDouble({digits.data(), count}, exponent);
    }

    std::u16string_view Rest_;
    std::u16string_view Body_;
    const RegionalSettings& Region_;
    DigitGrouping Grouping_;
    DigitSum Sum_;
    bool IsMisgrouped_ = false;
};

enum class Sign : std::uint8_t { None, Plus, Minus };

/// Takes the signs and parentheses off a number.
class SignReader {
public:
    SignReader(std::u16string_view& text, const RegionalSettings& region) : Text_(text), Region_(region) {}

    /// False when they contradict one another or are incomplete.
    bool read() {
        takeSign();
        if (Text_.starts_with(u'(')) {
            if (!Text_.ends_with(u')') || Sign_ == Sign::Plus) return false;
            Text_ = Text_.substr(1, Text_.size() - 2);
            trim(Text_);
            if (Sign_ == Sign::None) takeSign();
            if (Sign_ == Sign::Plus) return false;
            Sign_ = Sign::Minus;
        }
        return true;
    }

    bool isNegative() const { return Sign_ == Sign::Minus; }

private:
    bool takeEnd(std::u16string_view symbol) {
        if (symbol.empty()) return false;
        if (Text_.starts_with(symbol))
            Text_.remove_prefix(symbol.size());
        else if (Text_.ends_with(symbol))
            Text_.remove_suffix(symbol.size());
        else
            return false;
        trim(Text_);
        return true;
    }

    void takeSign() {
        if (takeEnd(Region_.NegativeSign) || takeEnd(u"-") || takeEnd(u"\u2212"))
            Sign_ = Sign::Minus;
        else if (takeEnd(u"+"))
            Sign_ = Sign::Plus;
    }

    std::u16string_view& Text_;
    const RegionalSettings& Region_;
    Sign Sign_ = Sign::None;
};

}  // namespace

NumberReading readNumber(std::u16string_view text, const RegionalSettings& region, double& out) {
    trim(text);
    SignReader signs(text, region);
    if (!signs.read()) return NumberReading::None;
    const std::optional<double> size = BodyReader(text, region).read();
    if (!size) return NumberReading::None;
    const double finite = toFinite(*size);
    out = signs.isNegative() && finite != 0 ? -finite : finite;
    return std::isinf(*size) ? NumberReading::TooLarge : NumberReading::Number;
}

NumberReading readEditedNumber(std::u16string_view text, const RegionalSettings& region, double& out) {
    const NumberReading asItStands = readNumber(text, region, out);
    if (asItStands != NumberReading::None) return asItStands;
    const DigitGrouping grouping(region);
    const bool isNegative = text.find(u')', std::min(text.find(u'('), text.size())) != std::u16string_view::npos;
    std::u16string bare = isNegative ? u"(" : u"";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = separatorLength(text.substr(at), grouping);
        if (length == 0 && text[at] != u'(' && text[at] != u')') bare += text[at];
        at += std::max<std::size_t>(length, 1);
    }
    if (isNegative) bare += u')';
    return readNumber(bare, region, out);
}

bool isNumeric(const Variant& value, const RegionalSettings& region) {
    return std::visit(
        [&region](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::u16string>) {
                double number = 0;
                return readNumber(held, region, number) == NumberReading::Number;
            } else if constexpr (std::is_same_v<Held, double>) {
                return std::isfinite(held);
            } else {
                return std::is_arithmetic_v<Held> || std::is_same_v<Held, Empty>;
            }
        },
        value);
}

double numberFrom(const Variant& value, const RegionalSettings& region) {
    return std::visit(
        [&region](const auto& held) -> double {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::u16string>) {
                double number = 0;
                readEditedNumber(held, region, number);
                return number;
            } else if constexpr (std::is_same_v<Held, bool>) {
                return held ? -1 : 0;
            } else if constexpr (std::is_arithmetic_v<Held>) {
                return toFinite(held);
            } else if constexpr (std::is_same_v<Held, Date>) {
                return toFinite(held.Serial);
            } else {
                return 0;
            }
        },
        value);
}

}  // namespace kel
