#include "values/RegionalSettings.h"

#include "controls/number/NumberText.h"
#include "fuzz/Fuzz.h"
#include "platform/win32/home/SystemPicture.h"
#include "tests/runtime/RegionalServices.h"
#include "values/Coercion.h"
#include "values/FormatExpression.h"
#include "values/NumberFormat.h"
#include "values/NumberReader.h"
#ifdef KEL_FUZZ_QT
#include <QLocale>

#include "platform/qt/home/QtRegion.h"
#endif

namespace kel::fuzz {
namespace {

constexpr char32_t LastCharacter = 0x10FFFF;

/// Each line is a setting, as somebody may have edited it; one that is missing leaves the usual one.
RegionalSettings regionIn(Lines& lines) {
    RegionalSettings region = lines.region();
    const auto text = [&](std::u16string& setting) {
        if (!lines.atEnd()) setting = lines.next();
    };
    const auto number = [&](auto& setting) {
        if (!lines.atEnd()) setting = static_cast<std::remove_reference_t<decltype(setting)>>(lines.whole());
    };
    for (std::u16string* const setting :
         {&region.DecimalSeparator, &region.GroupSeparator, &region.NegativeSign, &region.ShortDateFormat,
          &region.LongDateFormat, &region.TimeFormat, &region.DateSeparator, &region.TimeSeparator, &region.AmMarker,
          &region.PmMarker})
        text(*setting);
    number(region.ZeroDigit);
    // Homes let in characters alone, though not always ten in a row.
    if (region.ZeroDigit > LastCharacter - 9) region.ZeroDigit = U'0';
    number(region.PrimaryGroup);
    number(region.SecondaryGroup);
    number(region.MinimumGroupingDigits);
    number(region.DecimalDigits);
    number(region.FirstDayOfWeek);
    number(region.TwoDigitYearMax);
    for (std::u16string& name : region.WeekdayNames) text(name);
    for (std::u16string& name : region.MonthNames) text(name);
    for (std::u16string& name : region.AbbreviatedMonthNames) text(name);
    return region;
}

void workNumbers(const RegionalSettings& region, double number) {
    constexpr std::int16_t Decimals = 3;
    const std::u16string display = displayText(number, Decimals, true, region);
    const std::u16string edited = editText(number, Decimals, region);
    double read = 0;
    readNumber(display, region, read);
    readEditedNumber(display, region, read);
    readPlainNumber(generalNumber(number, region), region, read);
    filterPaste(display, edited, {0, edited.size()}, Decimals, region);
    filterPaste(edited, display, {display.size() / 2, 0}, Decimals, region);
    for (const char16_t key : display)
        filterKey(key, edited, {edited.size() / 2, 0}, {.decimals = Decimals, .zeroDigit = region.ZeroDigit});
    FormatExpression(u"#,##0.00E+0;(0.0);\"-\"").format(number, region);
    std::u16string text;
    static_cast<void>(coerce(Variant(number), region, text));
}

void workDates(const RegionalSettings& region, Date date) {
    RegionalServices services;
    services.Region = &region;
    const auto runtime = makeRuntime(services);
    const auto dates = runtime->RuntimeDates();
    for (const char16_t* const name : {u"ddddd", u"dddddd", u"ttttt", u"c", u"ddd d mmm yy h:nn AMPM", u"dd/mm/yyyy"}) {
        const std::u16string shown = FormatExpression(name).format(date, region);
        dates->ParseDate(shown, name, Date{41348}, true);
        dates->ParseDate(shown, region.ShortDateFormat, Date{41348}, false);
        dates->ParseTime(shown);
        FormatExpression(name).fields(date, region);
    }
}

/// The region as one that Windows describes in these words, its native digits among them.
RegionalSettings asPictures(RegionalSettings region) {
    region.ZeroDigit = win32::zeroOfDigits(region.AbbreviatedMonthNames.front());
    win32::readGrouping(region.GroupSeparator, region);
    region.ShortDateFormat = win32::formatOfDatePicture(region.ShortDateFormat, region.DateSeparator);
    region.LongDateFormat = win32::formatOfDatePicture(region.LongDateFormat, {});
    region.TimeFormat = win32::formatOfTimePicture(region.TimeFormat, region.TimeSeparator);
    return region;
}

/// What stands in quotes is shown as it stands.
void checkQuoted(const std::u16string& text, const RegionalSettings& region) {
    std::u16string quoted;
    for (const char16_t unit : text) quoted.append(unit == u'\'' ? 2 : 1, unit);
    const std::u16string format = win32::formatOfDatePicture(u"d'" + quoted + u"'", {});
    const std::u16string shown = FormatExpression(format).format(Date{2}, region);
    require(shown.size() >= text.size() && shown.substr(shown.size() - text.size()) == text,
            "what a picture quotes is shown as it stands", {text, format, shown});
}

#ifdef KEL_FUZZ_QT
/// What Qt says of a region makes one in which numbers and dates read back.
void checkLocale(std::u16string_view name, double number) {
    const RegionalSettings region =
        qt::regionFromLocale(QLocale(QString::fromUtf16(name.data(), qsizetype(name.size()))));
    const std::u16string text = displayText(number, 2, true, region);
    double read = 0;
    require(readNumber(text, region, read) == NumberReading::Number && displayText(read, 2, true, region) == text,
            "a number reads back in every locale", {text, name, region.Name});
    workDates(region, {number});
}
#endif

}  // namespace
}  // namespace kel::fuzz

/// A number, a region's or a locale's name, and other settings for it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    const double number = lines.number();
#ifdef KEL_FUZZ_QT
    Lines names = lines;
    checkLocale(names.next(), number);
#endif
    const kel::RegionalSettings region = regionIn(lines);
    for (const kel::RegionalSettings& edited : {region, asPictures(region)}) {
        workNumbers(edited, number);
        workDates(edited, {number});
    }
    checkQuoted(region.LongDateFormat, region);
    return 0;
}
