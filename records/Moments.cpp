#include "records/Moments.h"

#include <cstdio>

#include "values/Calendar.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::size_t DayLength = 10;
constexpr std::size_t MinutesLength = 5;

/// The number at `place`, which has so many digits; nothing where another character stands.
std::optional<std::int32_t> digits(std::u16string_view text, std::size_t place, std::size_t count) {
    if (place + count > text.size()) return std::nullopt;
    std::int32_t number = 0;
    for (const char16_t unit : text.substr(place, count)) {
        if (unit < u'0' || unit > u'9') return std::nullopt;
        number = number * 10 + (unit - u'0');
    }
    return number;
}

bool standsAt(std::u16string_view text, std::size_t place, char16_t unit) {
    return place < text.size() && text[place] == unit;
}

/// Without the day before it, if there is one.
std::u16string_view timeIn(std::u16string_view text) {
    const bool follows = standsAt(text, DayLength, u' ') || standsAt(text, DayLength, u'T');
    return follows ? text.substr(DayLength + 1) : text;
}

}  // namespace

std::u16string isoDay(Date date) {
    const DateParts parts = datePartsOf(date);
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", parts.year, parts.month, parts.day);
    return widen(text);
}

std::u16string isoTime(Date date) {
    const TimeParts parts = timePartsOf(date);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", parts.hour, parts.minute, parts.second);
    return widen(text);
}

std::optional<Date> readIsoDay(std::u16string_view text) {
    if (!standsAt(text, 4, u'-') || !standsAt(text, 7, u'-')) return std::nullopt;
    if (text.size() > DayLength && timeIn(text) == text) return std::nullopt;
    const auto year = digits(text, 0, 4);
    const auto month = digits(text, 5, 2);
    const auto day = digits(text, 8, 2);
    return year && month && day ? dateOf({*year, *month, *day}) : std::nullopt;
}

std::optional<Date> readIsoTime(std::u16string_view text) {
    const std::u16string_view time = timeIn(text);
    const auto hour = digits(time, 0, 2);
    const auto minute = digits(time, 3, 2);
    if (!hour || !minute || !standsAt(time, 2, u':')) return std::nullopt;
    if (!standsAt(time, MinutesLength, u':')) return timeOf({*hour, *minute, 0});
    const auto second = digits(time, MinutesLength + 1, 2);
    return second ? timeOf({*hour, *minute, *second}) : std::nullopt;
}

std::u16string withIsoDay(std::u16string_view text, Date day) {
    if (!readIsoTime(text)) return isoDay(day) + u" 00:00:00";
    std::u16string_view time = timeIn(text);
    if (!text.starts_with(isoDay(day))) time = time.substr(0, time.find_first_not_of(u"0123456789:."));
    return isoDay(day) + u' ' + std::u16string(time);
}

std::u16string withIsoTime(std::u16string_view text, Date time) {
    const auto day = readIsoDay(text);
    if (!day) return isoTime(time);
    const std::u16string_view before = timeIn(text);
    const std::u16string now = isoTime(time);
    return isoDay(*day) + u' ' + (before.starts_with(now) ? std::u16string(before) : now);
}

}  // namespace kel::records
