#pragma once

#include <cstdint>
#include <optional>

#include "values/Variant.h"

/// Day serials and calendar parts, years 100 to 9999 of the Gregorian calendar.
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

/// The day of a serial; days outside the calendar give its nearest end.
DateParts datePartsOf(Date date);

/// The time of day to the nearest second; the last half second of a day counts as 23:59:59.
TimeParts timePartsOf(Date date);

/// The day alone and the time of day alone.
Date dayOf(Date date);
double dayFractionOf(Date date);

/// A day with a time of day. Before 30 December 1899 the fraction counts away from zero.
Date withTime(Date day, double fraction);

}  // namespace kel
