#include "values/DateByFormat.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string>

#include "values/FormatExpressionNames.h"
#include "values/Words.h"

namespace kel {

namespace {

/// How a field is written in digits, and what they are for.
struct NumberField {
    std::uint8_t least = 0;  ///< digits; 0: the field is no number
    std::uint8_t most = 0;
    std::optional<DatePart> part{};

    constexpr bool exists() const { return most != 0; }
    constexpr bool isFixed() const { return least == most; }
};

constexpr NumberField numberField(DateField field) {
    switch (field) {
        case DateField::Day: return {1, 2, DatePart::Day};
        case DateField::TwoDigitDay: return {2, 2, DatePart::Day};
        case DateField::Month: return {1, 2, DatePart::Month};
        case DateField::TwoDigitMonth: return {2, 2, DatePart::Month};
        case DateField::TwoDigitYear: return {2, 2, DatePart::Year};
        case DateField::Year: return {4, 4, DatePart::Year};
        case DateField::Hour:
        case DateField::Minute:
        case DateField::Second:
        case DateField::WeekOfYear: return {1, 2};
        case DateField::TwoDigitHour:
        case DateField::TwoDigitMinute:
        case DateField::TwoDigitSecond: return {2, 2};
        case DateField::DayOfYear: return {1, 3};
        case DateField::Quarter:
        case DateField::WeekdayNumber: return {1, 1};
        default: return {};
    }
}

/// Two at least, as years may be written with two digits where the format shows four.
constexpr std::uint8_t TouchingDigits = 2;

constexpr std::size_t FieldCount = static_cast<std::size_t>(DateField::General) + 1;

constexpr std::array<NumberField, FieldCount> NumberFields = [] {
    std::array<NumberField, FieldCount> fields;
    for (std::size_t at = 0; at < FieldCount; ++at) fields[at] = numberField(static_cast<DateField>(at));
    return fields;
}();

constexpr const NumberField& digitsOf(DateField field) { return NumberFields[static_cast<std::size_t>(field)]; }

/// Whether a text of the field may begin with a digit. In some languages the names of months begin with their numbers.
constexpr bool mayBeginWithDigit(DateField field) {
    return digitsOf(field).exists() || field == DateField::ShortMonthName || field == DateField::MonthName;
}

class LayoutReader {
public:
    LayoutReader(std::u16string_view text, const RegionalSettings& region, WrittenDate& written)
        : Text_(text), Region_(region), Written_(written) {}

    bool read(const DateFormat& format) {
        bool touches = false;
        for (const DateFormat::Step& step : format.steps()) {
            const NumberField& number = digitsOf(step.field);
            if (!(number.exists() ? takeNumber(number, step.isBeforeDigit, touches) : takeOther(format.token(step))))
                return false;
            touches = step.isBeforeDigit;
        }
        skipSeparators(Text_);
        return Text_.empty();
    }

private:
    bool takeOther(const DateToken& token) {
        if (!isPart(token.field)) return takeLiteral(literalOf(token));
        switch (token.field) {
            case DateField::ShortWeekday: return takeName(Region_.AbbreviatedWeekdayNames);
            case DateField::Weekday: return takeName(Region_.WeekdayNames);
            case DateField::ShortMonthName: return takeMonth(Region_.AbbreviatedMonthNames);
            case DateField::MonthName: return takeMonth(Region_.MonthNames);
            case DateField::ShortDate:
            case DateField::General: return takeRegional(Region_.ShortDateFormat);
            case DateField::LongDate: return takeRegional(Region_.LongDateFormat);
            case DateField::LongTime: return takeRegional(Region_.TimeFormat);
            case DateField::HalfDay: {
                const std::size_t half = token.text.size() / 2;
                return takeText(token.text.substr(0, half)) || takeText(token.text.substr(half + 1));
            }
            case DateField::RegionalHalfDay: return takeText(Region_.AmMarker) || takeText(Region_.PmMarker);
            default: return false;
        }
    }

    std::u16string_view literalOf(const DateToken& token) const {
        if (token.field == DateField::Literal) return token.text;
        return token.field == DateField::DateSeparator ? Region_.DateSeparator : Region_.TimeSeparator;
    }

    bool takeRegional(std::u16string_view expression) {
        DateFieldScanner scanner(expression, DateFieldScanner::Source::Region);
        bool touches = false;
        for (DateToken token; scanner.next(token);) {
            const NumberField& number = digitsOf(token.field);
            const bool isBeforeDigit = number.exists() && mayBeginWithDigit(scanner.peek());
            if (!(number.exists() ? takeNumber(number, isBeforeDigit, touches) : takeOther(token))) return false;
            touches = isBeforeDigit;
        }
        return true;
    }

    /// Letters and digits as they are; any separators or none for separators.
    bool takeLiteral(std::u16string_view literal) {
        for (const char16_t unit : literal) {
            if (!isWordUnit(unit))
                skipSeparators(Text_);
            else if (!takeLetter(unit))
                return false;
        }
        return true;
    }

    bool takeLetter(char16_t unit) {
        if (Text_.empty() || plainLetter(Text_.front()) != plainLetter(unit)) return false;
        Text_.remove_prefix(1);
        return true;
    }

    bool takeText(std::u16string_view text) {
        if (!beginsWithLetters(Text_, text)) return false;
        Text_.remove_prefix(text.size());
        return true;
    }

    /// The longest of the names that the text begins with, counted from 1; 0 for none.
    std::int32_t nameInFront(std::span<const std::u16string> names) const {
        std::size_t best = 0;
        std::size_t length = 0;
        for (std::size_t at = 0; at < names.size(); ++at) {
            if (names[at].size() <= length || !beginsWithLetters(Text_, names[at])) continue;
            best = at + 1;
            length = names[at].size();
        }
        return static_cast<std::int32_t>(best);
    }

    std::int32_t takeName(std::span<const std::u16string> names) {
        const std::int32_t name = nameInFront(names);
        if (name != 0) Text_.remove_prefix(names[static_cast<std::size_t>(name - 1)].size());
        return name;
    }

    bool takeMonth(std::span<const std::u16string> names) {
        const std::int32_t month = takeName(names);
        return month != 0 && put(DatePart::Month, {month, 1});
    }

    /// Digits that touch those of the part in front are no longer cut where the format cuts them when one is missing.
    bool takeNumber(const NumberField& number, bool isBeforeDigit, bool touches) {
        if (isBeforeDigit && !number.isFixed()) return false;
        const std::size_t most = isBeforeDigit ? number.most : Text_.size();
        const DigitGroup group = takeDigits(Text_, Region_.ZeroDigit, most);
        if (group.digits == 0 || (isBeforeDigit && group.digits != number.most)) return false;
        if (touches && group.digits < std::min(number.least, TouchingDigits)) return false;
        return number.part ? put(*number.part, group) : group.digits <= number.most;
    }

    /// A part that is shown twice is written twice; the longer year counts.
    bool put(DatePart part, const DigitGroup& group) {
        if (part == DatePart::Year) {
            if (group.digits <= Written_.yearDigits) return true;
        } else if (Written_.has(part) && Written_.of(part) != group.value) {
            return false;
        }
        return Written_.put(part, group);
    }

    std::u16string_view Text_;
    const RegionalSettings& Region_;
    WrittenDate& Written_;
};

}  // namespace

DateFormat::DateFormat(std::u16string_view given) : Given_(given), Expression_(given) {
    if (const NamedFormat* named = findNamedFormat(given)) Expression_ = named->expression;
    DateFieldScanner scanner(Expression_);
    for (DateToken token; scanner.next(token);) {
        Step step{.field = token.field};
        if (digitsOf(token.field).exists()) {
            step.isBeforeDigit = mayBeginWithDigit(scanner.peek());
        } else if (token.field == DateField::Literal || token.field == DateField::HalfDay) {
            step.textStart = static_cast<std::uint32_t>(Texts_.size());
            step.textUnits = static_cast<std::uint32_t>(token.text.size());
            Texts_ += token.text;
        }
        Steps_.push_back(step);
    }
}

bool readByFormat(std::u16string_view text, const DateFormat& format, const RegionalSettings& region,
                  WrittenDate& written) {
    written = {};
    return LayoutReader(text, region, written).read(format);
}

}  // namespace kel
