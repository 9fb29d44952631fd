#include "platform/win32/home/Win32Region.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cwchar>

#include "platform/win32/base/WideText.h"

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

/// "3;2;0" as the sizes of the first and of every further group.
void readGrouping(const std::u16string& sizes, RegionalSettings& region) {
    const auto digit = [&sizes](std::size_t at) {
        return static_cast<std::uint8_t>(at < sizes.size() && sizes[at] >= u'0' && sizes[at] <= u'9' ? sizes[at] - u'0'
                                                                                                     : 0);
    };
    region.PrimaryGroup = digit(0);
    region.SecondaryGroup = digit(2) != 0 ? digit(2) : region.PrimaryGroup;
    region.MinimumGroupingDigits = 1;
}

char32_t zeroDigit(const Locale& locale) {
    constexpr unsigned NativeDigits = 2;
    const std::u16string digits = locale.text(LOCALE_SNATIVEDIGITS);
    const auto breaks = [](char16_t left, char16_t right) { return right != left + 1; };
    const bool isRow = digits.size() == 10 && std::adjacent_find(digits.begin(), digits.end(), breaks) == digits.end();
    return locale.number(LOCALE_IDIGITSUBSTITUTION) == NativeDigits && isRow ? zeroOfTenDigits(digits.front()) : U'0';
}

void readNumbers(const Locale& locale, RegionalSettings& region) {
    region.DecimalSeparator = locale.text(LOCALE_SDECIMAL);
    region.GroupSeparator = locale.text(LOCALE_STHOUSAND);
    region.NegativeSign = locale.text(LOCALE_SNEGATIVESIGN);
    region.ZeroDigit = zeroDigit(locale);
    readGrouping(locale.text(LOCALE_SGROUPING), region);
    region.DecimalDigits = static_cast<std::int16_t>(locale.number(LOCALE_IDIGITS));
}

/// Turns a date or time picture of the system into a format expression.
class PictureReader {
public:
    PictureReader(std::u16string_view picture, std::u16string_view separator, char16_t separatorField, bool isTime)
        : Rest_(picture), Separator_(separator), SeparatorField_(separatorField), IsTime_(isTime) {}

    std::u16string read() {
        while (!Rest_.empty()) step();
        flush();
        return std::move(Out_);
    }

private:
    void step() {
        const char16_t unit = Rest_.front();
        if (unit == u'\'') return quoted();
        if (isField(unit)) return field(unit);
        if (!Separator_.empty() && Rest_.substr(0, Separator_.size()) == Separator_) {
            flush();
            Out_ += SeparatorField_;
            Rest_.remove_prefix(Separator_.size());
            return;
        }
        Literal_ += unit;
        Rest_.remove_prefix(1);
    }

    bool isField(char16_t unit) const {
        return (IsTime_ ? std::u16string_view(u"hHmst") : std::u16string_view(u"dMyg")).find(unit) !=
               std::u16string_view::npos;
    }

    void field(char16_t unit) {
        const std::size_t past = Rest_.find_first_not_of(unit);
        const std::size_t count = past == std::u16string_view::npos ? Rest_.size() : past;
        Rest_.remove_prefix(count);
        if (unit == u'g') return;  // eras are not written
        flush();
        Out_ += expression(unit, count);
    }

    std::u16string expression(char16_t unit, std::size_t count) const {
        switch (unit) {
            case u'y': return std::u16string(count > 2 ? 4 : 2, u'y');
            case u'M': return std::u16string(count, u'm');
            case u'H': return std::u16string(count, u'h');
            case u'm': return std::u16string(count, u'n');
            case u't': return u"AMPM";
            default: return std::u16string(count, unit);
        }
    }

    /// Text between single quotes, of which two in a row are one.
    void quoted() {
        Rest_.remove_prefix(1);
        while (!Rest_.empty()) {
            const bool isQuote = Rest_.front() == u'\'';
            if (isQuote && (Rest_.size() < 2 || Rest_[1] != u'\'')) break;
            Literal_ += Rest_.front();
            Rest_.remove_prefix(isQuote ? 2 : 1);
        }
        if (!Rest_.empty()) Rest_.remove_prefix(1);
    }

    void flush() {
        for (const char16_t unit : Literal_) {
            if (unit != u' ' && unit != u',') Out_ += u'\\';
            Out_ += unit;
        }
        Literal_.clear();
    }

    std::u16string_view Rest_;
    std::u16string_view Separator_;
    char16_t SeparatorField_;
    bool IsTime_;
    std::u16string Literal_;
    std::u16string Out_;
};

void readFormats(const Locale& locale, RegionalSettings& region) {
    region.DateSeparator = locale.text(LOCALE_SDATE);
    region.TimeSeparator = locale.text(LOCALE_STIME);
    region.ShortDateFormat = PictureReader(locale.text(LOCALE_SSHORTDATE), region.DateSeparator, u'/', false).read();
    region.LongDateFormat = PictureReader(locale.text(LOCALE_SLONGDATE), {}, u'/', false).read();
    region.TimeFormat = PictureReader(locale.text(LOCALE_STIMEFORMAT), region.TimeSeparator, u':', true).read();
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

}  // namespace kel::win32
