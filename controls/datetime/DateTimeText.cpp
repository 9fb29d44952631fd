#include "controls/datetime/DateTimeText.h"

#include <algorithm>

#include "host/Keys.h"
#include "values/Calendar.h"
#include "values/FormatExpressionNames.h"
#include "values/Text.h"

namespace kel {

namespace {

/// A value as the classic language compares it with a number; nothing for what is none.
struct SerialOf {
    std::optional<double> operator()(Empty) const { return 0; }
    std::optional<double> operator()(bool truth) const { return truth ? -1 : 0; }
    std::optional<double> operator()(std::int16_t number) const { return number; }
    std::optional<double> operator()(std::int32_t number) const { return number; }
    std::optional<double> operator()(double number) const { return number; }
    std::optional<double> operator()(Date date) const { return date.Serial; }
    template <class Other>
    std::optional<double> operator()(const Other&) const {
        return std::nullopt;
    }
};

bool isNull(const Variant& value) { return std::holds_alternative<Null>(value); }

/// `value` is Empty or a date; Empty equals "" too.
bool equals(const Variant& reference, const Variant& value) {
    if (const auto* text = std::get_if<std::u16string>(&reference))
        return text->empty() && std::holds_alternative<Empty>(value);
    const std::optional<double> serial = std::visit(SerialOf{}, reference);
    return serial && serial == std::visit(SerialOf{}, value);
}

std::optional<StepPart> stepPartOf(DateField field) {
    switch (field) {
        case DateField::Day:
        case DateField::TwoDigitDay:
        case DateField::ShortWeekday:
        case DateField::Weekday: return StepPart::Day;
        case DateField::Month:
        case DateField::TwoDigitMonth:
        case DateField::ShortMonthName:
        case DateField::MonthName: return StepPart::Month;
        case DateField::DayOfYear:
        case DateField::TwoDigitYear:
        case DateField::Year: return StepPart::Year;
        case DateField::Hour:
        case DateField::TwoDigitHour: return StepPart::Hour;
        case DateField::Minute:
        case DateField::TwoDigitMinute: return StepPart::Minute;
        case DateField::Second:
        case DateField::TwoDigitSecond: return StepPart::Second;
        default: return std::nullopt;
    }
}

}  // namespace

std::optional<Date> dateIn(const Variant& value) {
    const auto* date = std::get_if<Date>(&value);
    return date ? std::optional(*date) : std::nullopt;
}

bool isChanged(const Variant& reference, const Variant& value) {
    if (isNull(reference) || isNull(value)) return isNull(reference) != isNull(value);
    return !equals(reference, value);
}

bool isChangedByStep(const Variant& reference, Date value) { return !isNull(reference) && !equals(reference, value); }

std::u16string FieldFormat::show(std::optional<Date> value, const RegionalSettings& region) const {
    return value ? Expression_.format(*value, region) : std::u16string();
}

Date DateBounds::counted(Date date) const { return compare == BoundsCompare::ByDay ? dayOf(date) : date; }

bool DateBounds::isBefore(Date left, Date right) const { return isEarlier(counted(left), counted(right)); }

void DateBounds::putMinimum(Date date) {
    minimum = date;
    if (isBefore(maximum, minimum)) maximum = minimum;
}

void DateBounds::putMaximum(Date date) {
    maximum = date;
    if (isBefore(maximum, minimum)) minimum = maximum;
}

Date DateBounds::clamp(Date date) const {
    if (isBefore(date, minimum)) return counted(minimum);
    return isBefore(maximum, date) ? counted(maximum) : date;
}

bool DateBounds::contain(Date date) const { return !isBefore(date, minimum) && !isBefore(maximum, date); }

Validity validityOf(std::optional<Date> value, const DateBounds& bounds, bool mayBeEmpty) {
    if (!value) return mayBeEmpty ? Validity::Valid : Validity::NoValue;
    return bounds.contain(*value) ? Validity::Valid : Validity::OutOfRange;
}

std::u16string complaint(const MessageRow& message, const FieldRules& rules) {
    return worded(message, rules.format.show(rules.bounds.minimum, rules.region),
                  rules.format.show(rules.bounds.maximum, rules.region));
}

std::optional<StepPart> PartLetters::partOf(char16_t formatUnit) const {
    const std::size_t place = letters.find(toLowerAscii(formatUnit));
    if (place == std::u16string_view::npos) return std::nullopt;
    return static_cast<StepPart>(static_cast<std::size_t>(first) + place);
}

std::optional<StepPart> PartLetters::partOf(DateField field) const {
    const std::optional<StepPart> part = stepPartOf(field);
    const bool isOwn =
        part && *part >= first && static_cast<std::size_t>(*part) - static_cast<std::size_t>(first) < letters.size();
    return isOwn ? part : std::nullopt;
}

bool PartLetters::writeAllOf(std::u16string_view format, const RegionalSettings& region) const {
    const auto isWide = [&](DateField field) {
        return isSeparator(field) &&
               (field == DateField::DateSeparator ? region.DateSeparator : region.TimeSeparator).size() != 1;
    };
    if (findNamedFormat(format) != nullptr) return false;
    DateFieldScanner scanner(format);
    std::u16string_view rest = format;
    for (DateToken token; scanner.next(token); rest = scanner.rest()) {
        if (FormatScanner::protects(rest.front()) || isRegional(token.field) || isWide(token.field)) return false;
        const std::u16string_view written = rest.substr(0, rest.size() - scanner.rest().size());
        const std::optional<StepPart> shown = partOf(token.field);
        const bool isSame =
            std::all_of(written.begin(), written.end(), [&](char16_t unit) { return partOf(unit) == shown; });
        if (!isSame) return false;
    }
    return rest.empty();
}

StepPlace placeFrom(std::size_t start, Date value, const FieldRules& rules, const PartLetters& parts, StepPart usual) {
    const std::vector<ShownField> fields = rules.format.fields(value, rules.region);
    for (std::size_t at = 0; at < fields.size(); ++at) {
        const auto part = parts.partOf(fields[at].field);
        if (part && fields[at].end >= start) return {*part, at};
    }
    return {usual};
}

std::optional<ShownField> fieldOf(const StepPlace& place, Date value, const FieldRules& rules,
                                  const PartLetters& parts) {
    const std::vector<ShownField> fields = rules.format.fields(value, rules.region);
    if (place.field && *place.field < fields.size()) return fields[*place.field];
    const auto last = std::find_if(fields.rbegin(), fields.rend(),
                                   [&](const ShownField& field) { return parts.partOf(field.field) == place.part; });
    return last == fields.rend() ? std::nullopt : std::optional(*last);
}

std::optional<KeyAnswer> answerToCommonCharacter(char32_t character) {
    switch (character) {
        case U'+': return KeyAnswer::StepsUp;
        case U'-': return KeyAnswer::StepsDown;
        default: return answerToControlCharacter(character);
    }
}

}  // namespace kel
