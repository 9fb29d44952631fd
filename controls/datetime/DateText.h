#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "controls/datetime/DateTimeText.h"
#include "library/KelDateDaysFlag.h"

/// What the date field shows and makes of texts, values and keys, as pure functions.
namespace kel {

inline constexpr DateBounds AllDates{{-657434}, {2958465}, BoundsCompare::ByDay};  ///< years 100 to 9999
inline constexpr std::u16string_view DefaultDateFormat = u"dd/mm/yyyy";

inline constexpr ValueMessages DateMessages{
    {u"Invalid Date", u"Please enter a valid date in this field.",
     u"The field holds no date, and either is mandatory or holds a text that is none"},
    {u"Invalid Date", u"This field only accepts dates from {1} to {2}.",
     u"The date is before MinValue or after MaxValue"}};

/// The day of the month that a field keeps to.
struct DayPin {
    KelDateDaysFlag flag = KelDateDaysFlag::Allow;
    std::function<Date(Date)> lastDayOfMonth;  ///< the run-time object's; called for `LastDay` only
};

/// A date as a field holds it that is given this one by code; whatever the bounds, and the day may leave them.
Date pinned(Date date, const DayPin& pin);

/// A date as a field holds it after reading this one from its text: within the bounds first, then pinned, which
/// may lead out of them again.
Date committed(Date date, const DateBounds& bounds, const DayPin& pin);

/// One day, month or year on (`delta` 1) or back (-1), whichever stands at the caret. While the text is not what
/// the field itself shows for its value the day goes, or the month where the day is pinned. Without a value the
/// step leads to `today`. At an end of the calendar nothing moves.
FieldStep stepDate(const BoxState& box, Date today, std::int32_t delta, const FieldRules& rules, const DayPin& pin);

/// What a date is saved as: eight digits, day, month and year, in every region alike. Today is "Now", so that a
/// form always opens with the current date; no date is "".
std::u16string savedDate(std::optional<Date> value, Date today);

/// What puts a saved text back: eight digits are the date that they were saved from, whatever the format, or Null;
/// any other text is to be read.
Variant loadedDate(const std::u16string& text);

/// What the character comes to in the text box.
KeyAnswer answerToDateCharacter(char32_t character);

}  // namespace kel
