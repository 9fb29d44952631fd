#include "platform/win32/home/Win32Region.h"

#include <windows.h>

#include <array>
#include <cwchar>
#include <map>

#include "platform/win32/base/Locked.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/home/SystemPicture.h"

namespace kel::win32 {

namespace {

class Locale {
public:
    explicit Locale(const wchar_t* name) : Name_(name) {}

    std::u16string text(LCTYPE what) const {
        std::array<wchar_t, 256> buffer{};
        const int units = GetLocaleInfoEx(Name_, what, buffer.data(), static_cast<int>(buffer.size()));
        return units > 0 ? unwiden({buffer.data(), static_cast<std::size_t>(units - 1)}) : std::u16string();
    }

    unsigned number(LCTYPE what) const {
        DWORD value = 0;
        GetLocaleInfoEx(Name_, what | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&value),
                        sizeof value / sizeof(wchar_t));
        return value;
    }

    /// The last of the hundred years that two digits stand for; 0 when there is no such setting.
    unsigned twoDigitYearMax() const {
        DWORD year = 0;
        GetCalendarInfoEx(Name_, CAL_GREGORIAN, nullptr, CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER, nullptr, 0, &year);
        return year;
    }

private:
    const wchar_t* Name_;
};

char32_t zeroDigit(const Locale& locale) {
    constexpr unsigned NativeDigits = 2;
    return locale.number(LOCALE_IDIGITSUBSTITUTION) == NativeDigits ? zeroOfDigits(locale.text(LOCALE_SNATIVEDIGITS))
                                                                    : U'0';
}

void readNumbers(const Locale& locale, RegionalSettings& region) {
    region.DecimalSeparator = locale.text(LOCALE_SDECIMAL);
    region.GroupSeparator = locale.text(LOCALE_STHOUSAND);
    region.NegativeSign = locale.text(LOCALE_SNEGATIVESIGN);
    region.ZeroDigit = zeroDigit(locale);
    readGrouping(locale.text(LOCALE_SGROUPING), region);
    region.DecimalDigits = static_cast<std::int16_t>(locale.number(LOCALE_IDIGITS));
}

void readFormats(const Locale& locale, RegionalSettings& region) {
    region.DateSeparator = locale.text(LOCALE_SDATE);
    region.TimeSeparator = locale.text(LOCALE_STIME);
    region.ShortDateFormat = formatOfDatePicture(locale.text(LOCALE_SSHORTDATE), region.DateSeparator);
    region.LongDateFormat = formatOfDatePicture(locale.text(LOCALE_SLONGDATE), {});
    region.TimeFormat = formatOfTimePicture(locale.text(LOCALE_STIMEFORMAT), region.TimeSeparator);
    region.AmMarker = locale.text(LOCALE_S1159);
    region.PmMarker = locale.text(LOCALE_S2359);
}

/// Inside a date where the language has such a form, else on its own. One that differs in case only is none.
std::u16string monthName(const Locale& locale, LCTYPE what) {
    const std::u16string plain = locale.text(what);
    std::u16string inDate = locale.text(what | LOCALE_RETURN_GENITIVE_NAMES);
    const bool same = CompareStringOrdinal(wide(plain).c_str(), -1, wide(inDate).c_str(), -1, TRUE) == CSTR_EQUAL;
    return inDate.empty() || same ? plain : inDate;
}

void readNames(const Locale& locale, RegionalSettings& region) {
    for (unsigned month = 0; month < 12; ++month) {
        region.MonthNames.at(month) = monthName(locale, LOCALE_SMONTHNAME1 + month);
        region.AbbreviatedMonthNames.at(month) = monthName(locale, LOCALE_SABBREVMONTHNAME1 + month);
        region.StandaloneMonthNames.at(month) = locale.text(LOCALE_SMONTHNAME1 + month);
    }
    for (unsigned day = 0; day < 7; ++day) {
        const unsigned fromMonday = (day + 6) % 7;
        region.WeekdayNames.at(day) = locale.text(LOCALE_SDAYNAME1 + fromMonday);
        region.AbbreviatedWeekdayNames.at(day) = locale.text(LOCALE_SABBREVDAYNAME1 + fromMonday);
    }
    region.FirstDayOfWeek = static_cast<std::uint8_t>((locale.number(LOCALE_IFIRSTDAYOFWEEK) + 1) % 7 + 1);
}

}  // namespace

RegionalSettings readRegion(const wchar_t* name) {
    const Locale locale(name);
    RegionalSettings region;
    region.Name = locale.text(LOCALE_SNAME);
    readNumbers(locale, region);
    readFormats(locale, region);
    readNames(locale, region);
    if (const unsigned year = locale.twoDigitYearMax()) region.TwoDigitYearMax = static_cast<std::int16_t>(year);
    return region;
}

const RegionalSettings& systemRegion() {
    static const RegionalSettings Region = readRegion(LOCALE_NAME_USER_DEFAULT);
    return Region;
}

const RegionalSettings& regionOf(std::uint32_t locale) {
    static const LCID UserLocale = GetUserDefaultLCID();
    if (locale == LOCALE_NEUTRAL || locale == LOCALE_USER_DEFAULT || locale == UserLocale) return systemRegion();
    static SRWLOCK lock = SRWLOCK_INIT;
    static std::map<std::uint32_t, RegionalSettings> regions;
    const Locked locked(lock);
    const auto known = regions.find(locale);
    if (known != regions.end()) return known->second;
    std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
    if (LCIDToLocaleName(locale, name.data(), static_cast<int>(name.size()), 0) == 0) return systemRegion();
    return regions.emplace(locale, readRegion(name.data())).first->second;
}

}  // namespace kel::win32
