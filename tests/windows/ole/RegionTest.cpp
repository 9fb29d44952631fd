// Regional settings as the system gives them, in the library's own terms.

#include "platform/win32/base/WideText.h"
#include "platform/win32/home/Win32Region.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Client.h"

using namespace kel;
using namespace kel::tests;

namespace {

using win32::wide;

/// What every edition of the system's regional data agrees on.
struct Expected {
    const wchar_t* name;
    const wchar_t* decimal;
    std::uint8_t secondGroup;
    const wchar_t* dateSeparator;
    const wchar_t* shortDate;  ///< null: editions differ
    const wchar_t* time;
    const wchar_t* march;
    const wchar_t* sunday;
    std::uint8_t firstDay;
};

constexpr Expected Regions[] = {
    {L"en-GB", L".", 3, L"/", L"dd/mm/yyyy", L"hh:nn:ss", L"March", L"Sunday", 2},
    {L"en-US", L".", 3, L"/", L"m/d/yyyy", L"h:nn:ss AMPM", L"March", L"Sunday", 1},
    {L"fr-FR", L",", 3, L"/", L"dd/mm/yyyy", L"hh:nn:ss", L"mars", L"dimanche", 2},
    {L"de-DE", L",", 3, L".", nullptr, L"hh:nn:ss", L"März", L"Sonntag", 2},
    {L"pl-PL", L",", 3, L".", nullptr, L"hh:nn:ss", L"marca", L"niedziela", 2},
    {L"ja-JP", L".", 3, L"/", nullptr, L"h:nn:ss", L"3月", L"日曜日", 1},
    {L"en-IN", L".", 2, nullptr, nullptr, nullptr, L"March", L"Sunday", 1},
};

void expectText(const std::u16string& actual, const wchar_t* wanted) {
    if (wanted != nullptr) EXPECT_EQ(wide(actual), std::wstring(wanted));
}

}  // namespace

TEST(region_settings_of_the_system) {
    for (const Expected& expected : Regions) {
        const RegionalSettings region = win32::readRegion(expected.name);
        expectText(region.Name, expected.name);
        expectText(region.DecimalSeparator, expected.decimal);
        EXPECT_EQ(region.PrimaryGroup, 3);
        EXPECT_EQ(region.SecondaryGroup, expected.secondGroup);
        expectText(region.DateSeparator, expected.dateSeparator);
        expectText(region.ShortDateFormat, expected.shortDate);
        expectText(region.TimeFormat, expected.time);
        expectText(region.MonthNames[2], expected.march);
        expectText(region.WeekdayNames[0], expected.sunday);
        EXPECT_EQ(region.FirstDayOfWeek, expected.firstDay);
    }
}
