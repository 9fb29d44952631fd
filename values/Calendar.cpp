#include "values/Calendar.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace kel {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days Epoch = std::chrono::year{1899} / 12 / 30;

constexpr year_month_day calendarDay(const DateParts& parts) {
    return std::chrono::year{parts.year} / std::chrono::month{static_cast<unsigned>(parts.month)} /
           std::chrono::day{static_cast<unsigned>(parts.day)};
}

constexpr std::int32_t serialOf(const DateParts& parts) {
    return static_cast<std::int32_t>((sys_days{calendarDay(parts)} - Epoch).count());
}

constexpr std::int32_t FirstSerial = serialOf({FirstYear, 1, 1});
constexpr std::int32_t LastSerial = serialOf({LastYear, 12, 31});

}  // namespace

std::optional<Date> dateOf(const DateParts& parts) {
    const bool plausible = parts.year >= FirstYear && parts.year <= LastYear && parts.month >= 1 && parts.day >= 1 &&
                           parts.month <= 12 && parts.day <= 31;
    if (!plausible || !calendarDay(parts).ok()) return std::nullopt;
    return Date{static_cast<double>(serialOf(parts))};
}

std::optional<Date> timeOf(const TimeParts& parts) {
    const bool valid = parts.hour >= 0 && parts.hour < 24 && parts.minute >= 0 && parts.minute < 60 &&
                       parts.second >= 0 && parts.second < 60;
    if (!valid) return std::nullopt;
    return Date{static_cast<double>(parts.hour * 3600 + parts.minute * 60 + parts.second) / SecondsPerDay};
}

DateParts datePartsOf(Date date) {
    const double whole =
        std::clamp(std::trunc(date.Serial), static_cast<double>(FirstSerial), static_cast<double>(LastSerial));
    const year_month_day day{Epoch + days{static_cast<std::int32_t>(whole)}};
    return {static_cast<std::int32_t>(day.year()), static_cast<std::int32_t>(static_cast<unsigned>(day.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(day.day()))};
}

TimeParts timePartsOf(Date date) {
    const auto rounded = static_cast<std::int32_t>(std::lround(dayFractionOf(date) * SecondsPerDay));
    const std::int32_t seconds = std::min(rounded, SecondsPerDay - 1);
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

Date dayOf(Date date) { return {std::trunc(date.Serial)}; }

double dayFractionOf(Date date) { return std::abs(date.Serial - std::trunc(date.Serial)); }

Date withTime(Date day, double fraction) {
    const double whole = std::trunc(day.Serial);
    return {whole < 0 ? whole - fraction : whole + fraction};
}

}  // namespace kel
