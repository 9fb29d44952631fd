#include "values/DateReader.h"

#include "values/CalendarDays.h"
#include "values/DateByFormat.h"
#include "values/DateByOrder.h"
#include "values/Words.h"

namespace kel {

namespace {

constexpr std::int32_t Century = 100;
constexpr std::size_t ShortYearDigits = 2;

/// The year that ends in these two digits, in the hundred years up to `last`.
std::int32_t fullYear(std::int32_t digits, std::int32_t last) {
    return last - ((last - digits) % Century + Century) % Century;
}

std::u16string_view withoutOuterSeparators(std::u16string_view text) {
    skipSeparators(text);
    while (!text.empty() && !isWordUnit(text.back())) text.remove_suffix(1);
    return text;
}

bool isWordForToday(std::u16string_view text) {
    return (text.size() == 3 && equalsIgnoringCase(text, u"now")) ||
           (text.size() == 5 && equalsIgnoringCase(text, u"today"));
}

/// Whether `text` is seven or eight digits, which have a meaning in every format.
bool isDayMonthYear(std::u16string_view text, char32_t zero, DigitGroup& digits) {
    const bool hasLength = text.size() == 7 || text.size() == 8 || zero > 0xFFFF;
    if (!hasLength) return false;
    digits = takeDigits(text, zero);
    return text.empty() && (digits.digits == 7 || digits.digits == 8);
}

/// What a text is read by, beside its format.
struct Surroundings {
    Date defaultDate;
    TwoDigitYears years;
    const RegionalSettings& region;
};

/// The same day and month, a two-digit year being hundreds of years earlier if need be.
std::int32_t yearNotAfter(Date latest, DateParts parts) {
    while (calendar::exists(parts) && isEarlier(latest, calendar::dayWith(calendar::serialOf(parts))))
        parts.year -= Century;
    return parts.year;
}

/// False when there is no such date.
bool resolve(const WrittenDate& written, const Surroundings& by, Date& out) {
    const bool hasDay = written.has(DatePart::Day);
    const bool hasMonth = written.has(DatePart::Month);
    const bool hasYear = written.has(DatePart::Year);
    if (!hasDay && !hasMonth && !hasYear) return false;
    DateParts parts{written.of(DatePart::Year), written.of(DatePart::Month), hasDay ? written.of(DatePart::Day) : 1};
    if (!hasMonth || !hasYear) {
        const DateParts byDefault = datePartsOf(by.defaultDate);
        if (!hasYear) parts.year = byDefault.year;
        if (!hasMonth) parts.month = byDefault.month;
        if (!hasDay) parts.day = byDefault.day;
    }
    if (hasYear && written.yearDigits <= ShortYearDigits) {
        parts.year = fullYear(parts.year, by.region.TwoDigitYearMax);
        if (by.years == TwoDigitYears::NotAfterDefault) parts.year = yearNotAfter(dayOf(by.defaultDate), parts);
    }
    if (!calendar::exists(parts)) return false;
    out = calendar::dayWith(calendar::serialOf(parts));
    return true;
}

bool read(std::u16string_view text, const DateFormat& format, const Surroundings& by, Date& out) {
    WrittenDate written;
    DigitGroup digits;
    if (isDayMonthYear(text, by.region.ZeroDigit, digits)) {
        if (resolve(splitAsDayMonthYear(digits), by, out)) return true;
    } else if (readByFormat(text, format, by.region, written)) {
        return resolve(written, by, out);
    }
    return readByOrder(text, format.expression(), by.region, written) && resolve(written, by, out);
}

}  // namespace

std::optional<Date> readDate(std::u16string_view text, const DateFormat& format, Date defaultDate, TwoDigitYears years,
                             const RegionalSettings& region) {
    text = withoutOuterSeparators(text);
    if (text.empty()) return std::nullopt;
    if (isWordForToday(text)) return dayOf(defaultDate);
    std::optional<Date> date(std::in_place);
    if (!read(text, format, {defaultDate, years, region}, *date)) date.reset();
    return date;
}

}  // namespace kel
