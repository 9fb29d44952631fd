#pragma once

#include <optional>
#include <string_view>

#include "values/DateFormat.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// Dates as people write them in a field that shows them by a format expression.
///
/// - A text that has the layout of the format is read by it. Otherwise the order of day, month and year is the
///   format's, and the region's for what the format does not show. Whatever is neither letter nor digit
///   separates; letters may touch digits. A first number of four digits is a year, with month and day after; a last
///   one, in a format that begins with the year, makes the order the region's.
/// - Months are numbers or names: the region's or English ones, in full or from three letters on, as long as they
///   fit one month. Case and accents do not matter. Weekdays are passed over, and so are the words that the
///   format or the region's long date writes between the parts.
/// - Digits alone, in the order of the format: eight have a year of four digits (seven, one below 1000) and are day,
///   month and year where that is no date; six have a year of two digits, four none, and one or two are the day. Six
///   and four are month and year in a format of these alone.
/// - A year of one or two digits is in the hundred years that end with the region's `TwoDigitYearMax`. Others
///   stand as written.
/// - Parts that are not written come from the default date, but the day is 1 when month and year are written.
/// - "Now" and "Today" are the default date.
/// - A date that the calendar does not have is none: nothing is swapped, rolled over or guessed.
namespace kel {

enum class TwoDigitYears : std::uint8_t {
    AnyTime,
    NotAfterDefault,  ///< as in dates of birth: hundreds of years earlier if need be
};

/// The day that all of `text` stands for, or nothing. The time taken grows with the length of the text.
std::optional<Date> readDate(std::u16string_view text, const DateFormat& format, Date defaultDate, TwoDigitYears years,
                             const RegionalSettings& region);

/// Whether all of `text` is a date that says its month, be day, month or year first.
bool isDateInAnyOrder(std::u16string_view text, const RegionalSettings& region);

}  // namespace kel
