#include "runtime/Dates.h"

#include "values/Calendar.h"
#include "values/TimeReader.h"

namespace kel {

namespace {

Variant dateOrNull(const std::optional<Date>& date) { return date ? Variant(*date) : Variant(Null{}); }

/// The day serial that a number or a date is; nothing for other values and outside the calendar.
std::optional<Date> serialIn(const Variant& value) {
    const auto date = std::visit(
        [](const auto& held) -> std::optional<Date> {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Date>)
                return held;
            else if constexpr (std::is_arithmetic_v<Held> && !std::is_same_v<Held, bool>)
                return Date{static_cast<double>(held)};
            else
                return std::nullopt;
        },
        value);
    return date && isInCalendar(*date) ? date : std::nullopt;
}

}  // namespace

Variant dateFromValue(const Variant& value, const DateFormat& format, Date defaultDate, TwoDigitYears years,
                      const RegionalSettings& region) {
    if (const auto* text = std::get_if<std::u16string>(&value))
        return dateOrNull(readDate(*text, format, defaultDate, years, region));
    const std::optional<Date> serial = serialIn(value);
    return dateOrNull(serial ? std::optional(dayOf(*serial)) : std::nullopt);
}

Variant timeFromValue(const Variant& value, const RegionalSettings& region) {
    if (const auto* text = std::get_if<std::u16string>(&value)) return dateOrNull(readTime(*text, region));
    const std::optional<Date> serial = serialIn(value);
    return dateOrNull(serial ? timeOf(timePartsOf(*serial)) : std::nullopt);
}

}  // namespace kel
