#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/datetime/DateTimeText.h"
#include "values/Calendar.h"

/// What the time field shows and makes of texts, values and keys, as pure functions.
namespace kel {

inline constexpr DateBounds AllTimes{{0}, {static_cast<double>(SecondsPerDay - 1) / SecondsPerDay}};
inline constexpr std::u16string_view DefaultTimeFormat = u"hh:nn am/pm";

inline constexpr ValueMessages TimeMessages{
    {u"Invalid Time", u"Please enter a valid time in this field.", u"The field is mandatory and holds no time"},
    {u"Invalid Time", u"This field only accepts times from {1} to {2}.",
     u"The time is before MinValue or after MaxValue"}};

/// `format` with minutes where it writes months after an hour: "hh:mm" becomes "hh:nn", the first time it stands
/// there.
std::u16string correctedTimeFormat(std::u16string format);

/// The time of day of a bound, which may be put with a date in front of it. It counts from the midnight before,
/// also in serials below zero.
Date timeBound(Date date);

/// The time of day on a clock that counts seconds since midnight; the second that has begun counts.
Date clockTime(double secondsSinceMidnight);

/// One hour, minute or second on (`delta` 1) or back (-1), whichever stands at the caret. While the text is not
/// what the field itself shows for its value the minute goes. Without a value the step leads to `now`, a time of
/// day. Midnight is an end: the bounds stop what would pass it.
FieldStep stepTime(const BoxState& box, Date now, std::int32_t delta, const FieldRules& rules);

/// What a time is saved as: "hh:nn:ss", in every region alike; no time is "".
std::u16string savedTime(std::optional<Date> value);

/// What the character comes to in the text box; the region's digits, from `zeroDigit` on, are written as the others.
KeyAnswer answerToTimeCharacter(char32_t character, char32_t zeroDigit);

}  // namespace kel
