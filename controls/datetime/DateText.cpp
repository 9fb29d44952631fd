#include "controls/datetime/DateText.h"

#include <algorithm>

#include "values/Calendar.h"
#include "values/Digits.h"
#include "values/Text.h"
#include "values/Words.h"

namespace kel {

namespace {

constexpr std::u16string_view PartLetters = u"dmy";
constexpr std::size_t SavedDigits = 8;

enum class DatePart : std::uint8_t { Day, Month, Year };  // in the order of their letters

/// A part of the date, and how many separators stand in front of it.
struct PartPlace {
    DatePart part;
    std::size_t separators;
};

bool keepsDay(KelDateDaysFlag flag) { return flag == KelDateDaysFlag::FirstDay || flag == KelDateDaysFlag::LastDay; }

/// Invisible signs for the direction of writing, as some regions put them beside the date separator.
constexpr bool isDirectionSign(char16_t unit) {
    return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
           (unit >= 0x2066 && unit <= 0x2069);
}

bool isSeparator(char16_t unit) { return !isWordUnit(unit) && !isDirectionSign(unit); }

std::size_t countSeparators(std::u16string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isSeparator));
}

/// Where the separator with this number stands, 1 for the first; npos when there are fewer.
std::size_t findSeparator(std::u16string_view text, std::size_t number) {
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (isSeparator(text[position]) && --number == 0) return position;
    }
    return std::u16string_view::npos;
}

/// The day to step from is pinned by the calendar; the day stepped to, by the run-time object.
Date pinnedByCalendar(Date date, KelDateDaysFlag flag) {
    const DayPin pin{flag, lastDayOfMonth};
    return pinned(date, pin);
}

std::optional<DatePart> partOf(char16_t formatUnit) {
    const std::size_t place = PartLetters.find(toLowerAscii(formatUnit));
    if (place == std::u16string_view::npos) return std::nullopt;
    return static_cast<DatePart>(place);
}

/// The last place where the format shows the part.
PartPlace placeOf(DatePart part, std::u16string_view format) {
    std::size_t position = format.size();
    while (position > 0 && partOf(format[position - 1]) != part) --position;
    return {part, countSeparators(format.substr(0, position))};
}

/// The first part that the format shows behind so many separators; `other` when it shows none there.
DatePart partBehind(std::size_t separators, std::u16string_view format, DatePart other) {
    std::size_t position = separators == 0 ? 0 : findSeparator(format, separators);
    if (position == std::u16string_view::npos) position = std::max<std::size_t>(format.size(), 1) - 1;
    for (const char16_t unit : format.substr(position)) {
        if (const auto part = partOf(unit)) return *part;
    }
    return other;
}

PartPlace placeAtCaret(const BoxState& box, std::u16string_view format, DatePart other) {
    const std::size_t separators = countSeparators(std::u16string_view(box.text).substr(0, box.caret));
    return {partBehind(separators, format, other), separators};
}

/// At the end of the part that stands behind so many separators, where a backspace takes off what is seen.
std::size_t caretBehind(std::size_t separators, std::u16string_view text) {
    std::size_t position = findSeparator(text, separators + 1);
    if (position == std::u16string_view::npos) return text.size();
    while (position > 0 && isDirectionSign(text[position - 1])) --position;
    return position;
}

std::optional<Date> moved(Date date, DatePart part, std::int32_t delta) {
    switch (part) {
        case DatePart::Day: return addDays(date, delta);
        case DatePart::Month: return addMonths(date, delta);
        case DatePart::Year: return addYears(date, delta);
    }
    return std::nullopt;
}

void appendDigits(std::u16string& text, std::int32_t number, std::int32_t digits) {
    if (digits > 1) appendDigits(text, number / 10, digits - 1);
    text += static_cast<char16_t>(u'0' + number % 10);
}

}  // namespace

Date pinned(Date date, const DayPin& pin) {
    switch (pin.flag) {
        case KelDateDaysFlag::FirstDay: return firstDayOfMonth(date);
        case KelDateDaysFlag::LastDay: return pin.lastDayOfMonth(date);
        default: return date;
    }
}

Date committed(Date date, const DateBounds& bounds, const DayPin& pin) { return pinned(bounds.clamp(date), pin); }

FieldStep stepDate(const BoxState& box, Date today, std::int32_t delta, const FieldRules& rules, const DayPin& pin) {
    const std::u16string& format = rules.format.text();
    const DatePart usual = keepsDay(pin.flag) ? DatePart::Month : DatePart::Day;
    const Date base = pinnedByCalendar(box.value.value_or(today), pin.flag);
    const bool isAsShown = box.text == rules.format.show(base, rules.region);
    PartPlace place = isAsShown ? placeAtCaret(box, format, usual) : placeOf(usual, format);
    if (place.part == DatePart::Day) place.part = usual;
    const Date next = box.value ? moved(base, place.part, delta).value_or(base) : base;

    FieldStep step{.value = committed(next, rules.bounds, pin), .isFirst = !box.value};
    step.text = rules.format.show(step.value, rules.region);
    step.caret = caretBehind(place.separators, step.text);
    return step;
}

std::u16string savedDate(std::optional<Date> value, Date today) {
    if (value == today) return u"Now";
    std::u16string text;
    if (!value) return text;
    const DateParts parts = datePartsOf(*value);
    appendDigits(text, parts.day, 2);
    appendDigits(text, parts.month, 2);
    appendDigits(text, parts.year, 4);
    return text;
}

Variant loadedDate(const std::u16string& text) {
    std::u16string_view rest = text;
    const DigitGroup digits = takeDigits(rest, U'0');
    if (digits.digits != SavedDigits || !rest.empty()) return text;
    const std::int32_t number = digits.value;
    const std::optional<Date> date = dateOf({number % 10000, number / 10000 % 100, number / 1000000});
    return date ? Variant(*date) : Variant(Null{});
}

KeyPressEffect dateKeyPressEffect(char32_t key) { return commonKeyPressEffect(key).value_or(KeyPressEffect::Writes); }

std::u16string dateComplaint(Validity validity, const FieldRules& rules) { return complaint(validity, u"date", rules); }

}  // namespace kel
