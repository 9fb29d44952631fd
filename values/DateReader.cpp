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

std::u16string_view withoutSeparatorsBehind(std::u16string_view text) {
    while (!text.empty() && !isWordUnit(text.back())) text.remove_suffix(1);
    return text;
}

bool isWordForToday(std::u16string_view text) {
    return (text.size() == 3 && equalsIgnoringCase(text, u"now")) ||
           (text.size() == 5 && equalsIgnoringCase(text, u"today"));
}

/// Whether `text` is digits alone with a year of three or four among them.
bool isWholeDateInDigits(std::u16string_view text, char32_t zero, DigitGroup& digits) {
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

/// `text` is `whole` without the separators after it, one of which may be the last of the format or of a name.
bool read(std::u16string_view text, std::u16string_view whole, const DateFormat& format, const Surroundings& by,
          Date& out) {
    WrittenDate written;
    const bool hasLayout = readByFormat(whole, format, by.region, written);
    if (hasLayout && resolve(written, by, out)) return true;
    if (!hasLayout && readByOrder(text, format, by.region, written) && resolve(written, by, out)) return true;
    DigitGroup digits;
    return isWholeDateInDigits(text, by.region.ZeroDigit, digits) && resolve(splitAsDayMonthYear(digits), by, out);
}

}  // namespace

std::optional<Date> readDate(std::u16string_view text, const DateFormat& format, Date defaultDate, TwoDigitYears years,
                             const RegionalSettings& region) {
    std::u16string_view whole = text;
    skipSeparators(whole);
    text = withoutSeparatorsBehind(whole);
    if (text.empty()) return std::nullopt;
    if (isWordForToday(text)) return dayOf(defaultDate);
    std::optional<Date> date(std::in_place);
    if (!read(text, whole, format, {defaultDate, years, region}, *date)) date.reset();
    return date;
}

bool isDateInAnyOrder(std::u16string_view text, const RegionalSettings& region) {
    constexpr Date LeapDay = calendar::dayWith(calendar::serialOf({2000, 2, 29}));
    const Surroundings by{LeapDay, TwoDigitYears::AnyTime, region};
    WrittenDate written;
    Date date;
    static const DateFormat Orders[] = {DateFormat(u"d/m/yyyy"), DateFormat(u"m/d/yyyy"), DateFormat(u"yyyy/m/d")};
    for (const DateFormat& order : Orders) {
        if (readByOrder(text, order, region, written) && written.has(DatePart::Month) && resolve(written, by, date))
            return true;
    }
    return false;
}

}  // namespace kel
