#include "fuzz/Fuzz.h"
#include "tests/runtime/RegionalServices.h"
#include "values/Calendar.h"
#include "values/Digits.h"
#include "values/FormatExpression.h"

namespace kel::fuzz {
namespace {

bool isDay(DateField field) { return field == DateField::Day || field == DateField::TwoDigitDay; }
bool isMonth(DateField field) { return field >= DateField::Month && field <= DateField::MonthName; }

/// Whether the text cannot be taken for a part of a date, or for a weekday or a month.
bool onlySeparates(std::u16string_view text) { return text.find_first_not_of(u" /-.,:_") == std::u16string_view::npos; }

/// Whether a format shows day, month and a year of four digits, each once and apart from one another.
bool showsWholeDate(std::u16string_view format) {
    int days = 0, months = 0, years = 0;
    bool isApart = true;
    DateToken token;
    for (DateFieldScanner scanner(format); scanner.next(token);) {
        if (token.field == DateField::DateSeparator || token.field == DateField::Literal) {
            if (token.field == DateField::Literal && !onlySeparates(token.text)) return false;
            isApart |= token.field == DateField::DateSeparator || !token.text.empty();
            continue;
        }
        if (!isApart) return false;
        isApart = false;
        days += isDay(token.field);
        months += isMonth(token.field);
        years += token.field == DateField::Year;
        if (!isDay(token.field) && !isMonth(token.field) && token.field != DateField::Year) return false;
    }
    return days == 1 && months == 1 && years == 1;
}

void checkDate(RuntimeDates& dates, const RegionalSettings& region, const std::u16string& format,
               const std::u16string& text, Date today, bool birthDay) {
    const Variant read = dates.ParseDate(text, format, today, birthDay);
    const Date* const date = std::get_if<Date>(&read);
    require(date != nullptr || std::holds_alternative<Null>(read), "a text is a date or Null", {text, format});
    if (date == nullptr) return;
    require(isInCalendar(*date) && dayOf(*date) == *date, "what is read is a day of the calendar", {text, format});
    require(dates.ParseDate(*date, format, today, false) == read, "a day is itself", {text, format});
    for (const std::u16string& shownBy : {format, std::u16string(u"dddddd"), std::u16string(u"dd/mm/yyyy")}) {
        if (shownBy != u"dddddd" && !showsWholeDate(shownBy)) continue;
        const std::u16string shown = FormatExpression(shownBy).format(*date, region);
        require(dates.ParseDate(shown, shownBy, Date{41348}, false) == read, "a date reads back as it is shown",
                {shown, shownBy, region.Name, text});
    }
}

void checkTime(RuntimeDates& dates, const RegionalSettings& region, const std::u16string& text) {
    const Variant read = dates.ParseTime(text);
    const Date* const time = std::get_if<Date>(&read);
    require(time != nullptr || std::holds_alternative<Null>(read), "a text is a time or Null", {text});
    if (time == nullptr) return;
    require(time->Serial >= 0 && time->Serial < 1, "a time is within a day", {text});
    for (const char16_t* const format : {u"ttttt", u"hh:nn:ss", u"h.n.s AMPM", u"hhnnss"}) {
        const std::u16string shown = FormatExpression(format).format(*time, region);
        require(dates.ParseTime(shown) == read, "a time reads back as it is shown", {shown, format, region.Name});
    }
}

}  // namespace
}  // namespace kel::fuzz

/// A region, a format, a text, the day of today.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    kel::RegionalServices services;
    services.Region = &lines.region();
    const std::u16string format = lines.next(), text = lines.next();
    const kel::Date today{lines.number()};
    const auto runtime = kel::makeRuntime(services);
    const auto dates = runtime->RuntimeDates();
    for (const bool birthDay : {false, true}) checkDate(*dates, *services.Region, format, text, today, birthDay);
    checkTime(*dates, *services.Region, text);
    return 0;
}
