#include "values/Calendar.h"

#include <algorithm>
#include <cmath>

#include "values/CalendarDays.h"

namespace kel {

namespace {

using namespace calendar;

bool isSerial(std::int64_t serial) { return serial >= FirstSerial && serial <= LastSerial; }

std::int32_t secondOfDay(Date date) {
    const auto rounded = static_cast<std::int32_t>(std::lround(dayFractionOf(date) * SecondsPerDay));
    return std::min(rounded, SecondsPerDay - 1);
}

std::optional<Date> addCalendarMonths(Date date, std::int64_t months) {
    DateParts parts = datePartsOf(date);
    const std::int64_t month = parts.year * std::int64_t{MonthsPerYear} + parts.month - 1 + months;
    if (month < FirstYear * MonthsPerYear || month >= (LastYear + 1) * MonthsPerYear) return std::nullopt;
    parts.year = static_cast<std::int32_t>(month / MonthsPerYear);
    parts.month = static_cast<std::int32_t>(month % MonthsPerYear) + 1;
    parts.day = std::min(parts.day, lastDay(parts.year, parts.month));
    return withTime(dayWith(serialOf(parts)), dayFractionOf(date));
}

}  // namespace

std::optional<Date> dateOf(const DateParts& parts) {
    return exists(parts) ? std::optional(dayWith(serialOf(parts))) : std::nullopt;
}

std::optional<Date> timeOf(const TimeParts& parts) {
    const bool valid = parts.hour >= 0 && parts.hour < 24 && parts.minute >= 0 && parts.minute < 60 &&
                       parts.second >= 0 && parts.second < 60;
    if (!valid) return std::nullopt;
    return Date{static_cast<double>(parts.hour * 3600 + parts.minute * 60 + parts.second) / SecondsPerDay};
}

DateParts datePartsOf(Date date) { return partsOf(wholeDays(date)); }

TimeParts timePartsOf(Date date) {
    const std::int32_t seconds = secondOfDay(date);
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

std::int32_t weekdayOf(Date date) {
    // Day 1 is a Sunday; whole weeks are added so that no remainder is negative.
    constexpr std::int32_t WholeWeeks = (-FirstSerial / DaysPerWeek + 1) * DaysPerWeek;
    return (wholeDays(date) - 1 + WholeWeeks) % DaysPerWeek + 1;
}

std::int32_t dayOfYearOf(Date date) { return wholeDays(date) - serialOf({datePartsOf(date).year, 1, 1}) + 1; }

bool isInCalendar(Date date) { return date.Serial > FirstSerial - 1 && date.Serial < LastSerial + 1; }

std::optional<Date> addDays(Date date, std::int32_t count) {
    const std::int64_t serial = std::int64_t{wholeDays(date)} + count;
    if (!isSerial(serial)) return std::nullopt;
    return withTime(dayWith(serial), dayFractionOf(date));
}

std::optional<Date> addMonths(Date date, std::int32_t months) { return addCalendarMonths(date, months); }

std::optional<Date> addYears(Date date, std::int32_t years) {
    return addCalendarMonths(date, std::int64_t{years} * MonthsPerYear);
}

Date firstDayOfMonth(Date date) {
    const DateParts parts = datePartsOf(date);
    return dayWith(serialOf({parts.year, parts.month, 1}));
}

Date lastDayOfMonth(Date date) {
    const DateParts parts = datePartsOf(date);
    return dayWith(serialOf({parts.year, parts.month, lastDay(parts.year, parts.month)}));
}

std::optional<Date> addSeconds(Date date, std::int64_t seconds) {
    // More than the whole calendar lasts, which also keeps the sum from overflowing.
    constexpr std::int64_t Most = std::int64_t{LastSerial - FirstSerial + 1} * SecondsPerDay;
    if (seconds < -Most || seconds > Most) return std::nullopt;
    const std::int64_t fromFirstDay =
        std::int64_t{wholeDays(date) - FirstSerial} * SecondsPerDay + secondOfDay(date) + seconds;
    if (fromFirstDay < 0 || fromFirstDay >= Most) return std::nullopt;
    const std::int64_t serial = FirstSerial + fromFirstDay / SecondsPerDay;
    return withTime(dayWith(serial), static_cast<double>(fromFirstDay % SecondsPerDay) / SecondsPerDay);
}

bool isEarlier(Date left, Date right) {
    const double leftDay = dayOf(left).Serial;
    const double rightDay = dayOf(right).Serial;
    return leftDay != rightDay ? leftDay < rightDay : dayFractionOf(left) < dayFractionOf(right);
}

Date dayOf(Date date) { return dayWith(wholeDays(date)); }

double dayFractionOf(Date date) {
    return std::isfinite(date.Serial) ? std::abs(date.Serial - std::trunc(date.Serial)) : 0;
}

Date withTime(Date day, double fraction) {
    const std::int32_t whole = wholeDays(day);
    return {whole < 0 ? whole - fraction : whole + fraction};
}

}  // namespace kel
