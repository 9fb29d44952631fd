#pragma once

#include <cstdint>
#include <optional>

#include "values/Variant.h"

/// Day serials and calendar parts, years 100 to 9999 of the Gregorian calendar. Every double is taken: days
/// outside the calendar count as its nearest end, and what is not a number as day 0.
namespace kel {

struct DateParts {
    std::int32_t year = 1899;
    std::int32_t month = 12;  ///< 1 to 12
    std::int32_t day = 30;
    friend bool operator==(const DateParts&, const DateParts&) = default;
};

struct TimeParts {
    std::int32_t hour = 0;
    std::int32_t minute = 0;
    std::int32_t second = 0;
    friend bool operator==(const TimeParts&, const TimeParts&) = default;
};

inline constexpr std::int32_t FirstYear = 100;
inline constexpr std::int32_t LastYear = 9999;
inline constexpr std::int32_t SecondsPerDay = 86400;

/// Nothing when there is no such day (31 April) or the year is outside the calendar.
std::optional<Date> dateOf(const DateParts& parts);

/// Nothing when an hour is above 23, or a minute or second above 59.
std::optional<Date> timeOf(const TimeParts& parts);

DateParts datePartsOf(Date date);

/// The time of day to the nearest second; the last half second of a day counts as 23:59:59.
TimeParts timePartsOf(Date date);

/// 1 Sunday … 7 Saturday.
std::int32_t weekdayOf(Date date);
/// 1 for the first of January.
std::int32_t dayOfYearOf(Date date);

/// Whether the serial's day is one of the calendar's.
bool isInCalendar(Date date);

/// Some days, months or years later, earlier when negative; the time of day stays. A day that the month does
/// not have becomes its last one. Nothing when the result is outside the calendar.
std::optional<Date> addDays(Date date, std::int32_t days);
std::optional<Date> addMonths(Date date, std::int32_t months);
std::optional<Date> addYears(Date date, std::int32_t years);

/// Without a time of day.
Date firstDayOfMonth(Date date);
Date lastDayOfMonth(Date date);

/// Some seconds later, earlier when negative, to the nearest second. Nothing when the result is outside the
/// calendar.
std::optional<Date> addSeconds(Date date, std::int64_t seconds);

/// Before, at or after in time; serials themselves do not compare, as negative ones count their fraction away
/// from zero.
bool isEarlier(Date left, Date right);

/// The day alone and the time of day alone.
Date dayOf(Date date);
double dayFractionOf(Date date);

/// A day with a time of day. Before 30 December 1899 the fraction counts away from zero.
Date withTime(Date day, double fraction);

}  // namespace kel
