#pragma once

#include <chrono>
#include <cmath>
#include <cstdint>

#include "values/Calendar.h"

/// The calendar in whole days, inline: fields read and show a date at every key.
namespace kel::calendar {

inline constexpr std::int32_t MonthsPerYear = 12;
inline constexpr std::int32_t DaysPerWeek = 7;
inline constexpr std::chrono::sys_days Epoch = std::chrono::year{1899} / 12 / 30;

/// Of a day that the calendar has.
constexpr std::int32_t serialOf(const DateParts& parts) {
    const auto day = std::chrono::year{parts.year} / std::chrono::month{static_cast<unsigned>(parts.month)} /
                     std::chrono::day{static_cast<unsigned>(parts.day)};
    return static_cast<std::int32_t>((std::chrono::sys_days{day} - Epoch).count());
}

inline constexpr std::int32_t FirstSerial = serialOf({FirstYear, 1, 1});
inline constexpr std::int32_t LastSerial = serialOf({LastYear, 12, 31});

constexpr DateParts partsOf(std::int32_t serial) {
    const std::chrono::year_month_day day{Epoch + std::chrono::days{serial}};
    return {static_cast<std::int32_t>(day.year()), static_cast<std::int32_t>(static_cast<unsigned>(day.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(day.day()))};
}

constexpr std::int32_t lastDay(std::int32_t year, std::int32_t month) {
    const auto last = std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)} / std::chrono::last;
    return static_cast<std::int32_t>(static_cast<unsigned>(last.day()));
}

constexpr bool exists(const DateParts& parts) {
    constexpr std::int32_t ShortestMonth = 28;
    const bool isNear = parts.year >= FirstYear && parts.year <= LastYear && parts.month >= 1 &&
                        parts.month <= MonthsPerYear && parts.day >= 1;
    return isNear && (parts.day <= ShortestMonth || parts.day <= lastDay(parts.year, parts.month));
}

/// The serial without its time, brought into the calendar.
inline std::int32_t wholeDays(Date date) {
    if (date.Serial > FirstSerial && date.Serial < LastSerial) return static_cast<std::int32_t>(date.Serial);
    if (std::isnan(date.Serial)) return 0;
    return date.Serial < 0 ? FirstSerial : LastSerial;
}

constexpr Date dayWith(std::int64_t serial) { return {static_cast<double>(serial)}; }

}  // namespace kel::calendar
