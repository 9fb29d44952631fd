#include "controls/datetime/DateText.h"

#include <algorithm>

#include "values/Calendar.h"
#include "values/Digits.h"
#include "values/Text.h"
#include "values/Words.h"

namespace kel {

namespace {

constexpr PartLetters DateLetters{u"dmy", StepPart::Day};
constexpr std::size_t SavedDigits = 8;

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

/// Where the word at the caret begins: "15/03|/2013" is at its second word.
std::size_t wordStart(std::u16string_view text, std::size_t caret) {
    std::size_t start = std::min(caret, text.size());
    while (start > 0 && !isSeparator(text[start - 1])) --start;
    return start;
}

/// At the end of the part that stands after so many separators, where a backspace takes off what is seen.
std::size_t caretBehind(std::size_t separators, std::u16string_view text) {
    std::size_t position = findSeparator(text, separators + 1);
    if (position == std::u16string_view::npos) return text.size();
    while (position > 0 && isDirectionSign(text[position - 1])) --position;
    return position;
}

std::optional<Date> moved(Date date, StepPart part, std::int32_t delta) {
    switch (part) {
        case StepPart::Month: return addMonths(date, delta);
        case StepPart::Year: return addYears(date, delta);
        default: return addDays(date, delta);
    }
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
    const StepPart usual = keepsDay(pin.flag) ? StepPart::Month : StepPart::Day;
    const Date base = pinnedByCalendar(box.value.value_or(today), pin.flag);
    const bool isAsShown = box.text == rules.format.show(base, rules.region);
    const StepPlace place =
        isAsShown ? placeFrom(wordStart(box.text, box.caret), base, rules, DateLetters, usual) : StepPlace{usual};
    const StepPart part = place.part == StepPart::Day ? usual : place.part;
    const Date next = box.value ? moved(base, part, delta).value_or(base) : base;

    FieldStep step{.value = committed(next, rules.bounds, pin), .isFirst = !box.value};
    step.text = rules.format.show(step.value, rules.region);
    const std::optional<ShownField> field = fieldOf(place, step.value, rules, DateLetters);
    if (!DateLetters.writeAllOf(rules.format.text(), rules.region)) {
        step.caret = field ? field->end : box.caret;
        return step;
    }
    // The caret keeps to its word, also to one that shows no part: in "(1)" after d/m/yyyy (q) the day steps.
    const std::u16string_view passed = isAsShown ? std::u16string_view(box.text).substr(0, box.caret)
                                                 : std::u16string_view(step.text).substr(0, field ? field->start : 0);
    step.caret = caretBehind(countSeparators(passed), step.text);
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

KeyAnswer answerToDateCharacter(char32_t character) {
    return answerToCommonCharacter(character).value_or(KeyAnswer::Writes);
}

}  // namespace kel
