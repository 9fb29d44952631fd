#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kel {

/// How a region writes numbers, dates and times. A plain value: it is passed in, there is no global one.
struct RegionalSettings {
    std::u16string Name = u"en-GB";  ///< language-REGION

    std::u16string DecimalSeparator = u".";
    std::u16string GroupSeparator = u",";
    std::u16string NegativeSign = u"-";
    char32_t ZeroDigit = U'0';               ///< the ten digits follow one another from here
    std::uint8_t PrimaryGroup = 3;           ///< digits next to the decimal separator; 0: no grouping
    std::uint8_t SecondaryGroup = 3;         ///< digits of every further group (2 in India)
    std::uint8_t MinimumGroupingDigits = 1;  ///< 2: "1000" stays ungrouped, "10 000" does not
    std::int16_t DecimalDigits = 2;          ///< decimals of an ordinary number

    std::u16string ShortDateFormat = u"dd/mm/yyyy";  ///< in the format expression language
    std::u16string LongDateFormat = u"dd mmmm yyyy";
    std::u16string TimeFormat = u"hh:nn:ss";
    std::u16string DateSeparator = u"/";
    std::u16string TimeSeparator = u":";
    std::u16string AmMarker = u"am";
    std::u16string PmMarker = u"pm";
    std::array<std::u16string, 12> MonthNames{};  ///< January first, as used inside a date
    std::array<std::u16string, 12> AbbreviatedMonthNames{};
    std::array<std::u16string, 12> StandaloneMonthNames{};  ///< as on a calendar, without a day
    std::array<std::u16string, 7> WeekdayNames{};           ///< Sunday first
    std::array<std::u16string, 7> AbbreviatedWeekdayNames{};
    std::uint8_t FirstDayOfWeek = 1;      ///< 1 Sunday … 7 Saturday
    std::int16_t TwoDigitYearMax = 2049;  ///< the last of the hundred years that two digits stand for

    friend bool operator==(const RegionalSettings&, const RegionalSettings&) = default;
};

/// `zero` where ten digits can follow one another from there, all of them characters that take up the same room; else
/// the plain 0. For what a system says of itself, which somebody may have edited.
constexpr char32_t zeroOfTenDigits(char32_t zero) {
    const char32_t nine = zero + 9;
    const bool isHalfPair = nine >= 0xD800 && zero <= 0xDFFF;
    return nine <= 0x10FFFF && zero >> 16 == nine >> 16 && !isHalfPair ? zero : U'0';
}

/// The built-in settings of a region by its name ("en-GB", also "en_GB", case ignored);
/// nullptr when the region is not built in.
const RegionalSettings* findRegion(std::u16string_view name);

/// Names of all built-in regions, in alphabetical order.
std::vector<std::u16string_view> regionNames();

/// The settings used where nobody names a region: en-GB.
const RegionalSettings& defaultRegion();

}  // namespace kel
