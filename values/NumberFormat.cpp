#include "values/NumberFormat.h"

#include <algorithm>

#include "values/Coercion.h"
#include "values/Decimal.h"
#include "values/DecimalDigits.h"

namespace kel {

namespace {

constexpr std::u16string_view PlainPoint = u".";
constexpr std::u16string_view PlainMinus = u"-";

/// One number on its way to a text: measured first, so that the text is allocated once.
class NumberWriter {
public:
    NumberWriter(double number, const NumberFormat& format, const RegionalSettings& region)
        : Decimals_(std::clamp<std::int16_t>(format.decimals, 0, MostDecimals)),
          Digits_(rounded(shortestDecimal(number), Decimals_), format.trailingZeros),
          Zero_(format.typedSymbols ? U'0' : region.ZeroDigit),
          Grouping_(format.group ? DigitGrouping(region) : DigitGrouping()) {
        Whole_ = std::max<std::size_t>(Digits_.wholeDigits(), format.leadingZero ? 1 : 0);
        Fraction_ = format.trailingZeros ? static_cast<std::size_t>(Decimals_) : Digits_.fractionDigits();
        Separators_ = Grouping_.countIn(Whole_);
        if (Fraction_ != 0) Point_ = decimalSeparatorOf(region);
        if (!Digits_.isNegative()) return;
        Before_ = format.parentheses ? u"(" : format.typedSymbols ? PlainMinus : negativeSignOf(region);
        Behind_ = format.parentheses ? u")" : u"";
    }

    std::u16string text() const {
        std::u16string text(mostUnits(), u'\0');
        char16_t* pen = putWhole(put(Before_, text.data()));
        pen = put(Point_, pen);
        for (std::size_t at = 0; at < Fraction_; ++at) pen = putDigit(pen, Zero_, Digits_.fractionDigit(at));
        pen = put(Behind_, pen);
        text.resize(static_cast<std::size_t>(pen - text.data()));
        return text;
    }

private:
    std::size_t mostUnits() const {
        const std::size_t digits = (Whole_ + Fraction_) * (Zero_ + 9 > 0xFFFF ? 2 : 1);
        return digits + Before_.size() + Point_.size() + Behind_.size() + Separators_ * Grouping_.separator().size();
    }

    static char16_t* put(std::u16string_view symbols, char16_t* pen) {
        for (const char16_t unit : symbols) *pen++ = unit;
        return pen;
    }

    char16_t* putWhole(char16_t* pen) const {
        std::size_t separators = Separators_;
        const auto nextSeparator = [&] {
            return separators == 0 ? Whole_ : Whole_ - Grouping_.digitsBehind(separators);
        };
        const std::size_t lead = Whole_ - Digits_.wholeDigits();
        std::size_t separatorAt = nextSeparator();
        for (std::size_t at = 0; at < Whole_; ++at) {
            if (at == separatorAt) {
                pen = put(Grouping_.separator(), pen);
                --separators;
                separatorAt = nextSeparator();
            }
            pen = putDigit(pen, Zero_, at < lead ? 0 : Digits_.wholeDigit(at - lead));
        }
        return pen;
    }

    std::int16_t Decimals_;
    DecimalDigits Digits_;
    char32_t Zero_;
    DigitGrouping Grouping_;
    std::size_t Whole_ = 0;
    std::size_t Fraction_ = 0;
    std::size_t Separators_ = 0;
    std::u16string_view Before_;
    std::u16string_view Point_;
    std::u16string_view Behind_;
};

}  // namespace

std::u16string_view decimalSeparatorOf(const RegionalSettings& region) {
    return region.DecimalSeparator.empty() ? PlainPoint : region.DecimalSeparator;
}

std::u16string_view negativeSignOf(const RegionalSettings& region) {
    return region.NegativeSign.empty() ? PlainMinus : region.NegativeSign;
}

DigitGrouping::DigitGrouping(const RegionalSettings& region) {
    if (region.GroupSeparator.empty() || region.GroupSeparator == decimalSeparatorOf(region)) return;
    Separator_ = region.GroupSeparator;
    Primary_ = region.PrimaryGroup;
    Secondary_ = region.SecondaryGroup;
    Minimum_ = region.MinimumGroupingDigits;
}

std::size_t DigitGrouping::countIn(std::size_t digits) const {
    if (Primary_ == 0 || digits < Primary_ + std::max<std::size_t>(Minimum_, 1)) return 0;
    return Secondary_ == 0 ? 1 : 1 + (digits - Primary_ - 1) / Secondary_;
}

std::u16string formatNumber(double number, const NumberFormat& format, const RegionalSettings& region) {
    return NumberWriter(number, format, region).text();
}

std::u16string generalNumber(double number, const RegionalSettings& region) {
    std::u16string text = shortestNumber(toFinite(number));
    const std::size_t point = text.find(u'.');
    if (point != std::u16string::npos) text.replace(point, 1, decimalSeparatorOf(region));
    return text;
}

}  // namespace kel
