#include "values/RegionalSettings.h"

#include <gtest/gtest.h>
#include <algorithm>

#include "values/Text.h"

using namespace kel;

TEST(Regions, AreFoundHoweverTheNameIsWritten) {
    const RegionalSettings* german = findRegion(u"de-DE");
    ASSERT_NE(german, nullptr);
    for (const std::u16string_view name : {u"de_DE", u"DE-de", u"de_de"}) EXPECT_EQ(findRegion(name), german);
    for (const std::u16string_view name : {u"", u"de", u"de-", u"de-DEX", u"xx-XX", u"deDE"}) {
        EXPECT_EQ(findRegion(name), nullptr) << toUtf8(name);
    }
    EXPECT_EQ(&defaultRegion(), findRegion(u"en-GB"));
}

TEST(Regions, AreListedInOrderAndAllThere) {
    const std::vector<std::u16string_view> names = regionNames();
    EXPECT_GE(names.size(), 50U);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    for (const std::u16string_view name : names) {
        SCOPED_TRACE(toUtf8(name));
        const RegionalSettings* region = findRegion(name);
        ASSERT_NE(region, nullptr);
        EXPECT_EQ(region->Name, name);
        for (const auto* months : {&region->MonthNames, &region->AbbreviatedMonthNames}) {
            EXPECT_EQ(std::count(months->begin(), months->end(), u""), 0);
        }
        for (const auto* days : {&region->WeekdayNames, &region->AbbreviatedWeekdayNames}) {
            EXPECT_EQ(std::count(days->begin(), days->end(), u""), 0);
        }
    }
}

TEST(Regions, WriteNumbersAsTheirPeopleDo) {
    const struct {
        std::u16string_view name, decimal, group, negative;
        char32_t zero;
        int primary, secondary, minimum;
    } cases[] = {
        {u"en-GB", u".", u",", u"-", U'0', 3, 3, 1},
        {u"fr-FR", u",", u"\u202F", u"-", U'0', 3, 3, 1},
        {u"sv-SE", u",", u"\u00A0", u"\u2212", U'0', 3, 3, 1},
        {u"es-ES", u",", u".", u"-", U'0', 3, 3, 2},
        {u"hi-IN", u".", u",", u"-", U'0', 3, 2, 1},
        {u"ar-EG", u"\u066B", u"\u066C", u"\u061C-", U'\u0660', 3, 3, 1},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(toUtf8(expected.name));
        const RegionalSettings& region = *findRegion(expected.name);
        EXPECT_EQ(region.DecimalSeparator, expected.decimal);
        EXPECT_EQ(region.GroupSeparator, expected.group);
        EXPECT_EQ(region.NegativeSign, expected.negative);
        EXPECT_EQ(region.ZeroDigit, expected.zero);
        EXPECT_EQ(region.PrimaryGroup, expected.primary);
        EXPECT_EQ(region.SecondaryGroup, expected.secondary);
        EXPECT_EQ(region.MinimumGroupingDigits, expected.minimum);
        EXPECT_EQ(region.DecimalDigits, 2);
    }
}

TEST(Regions, WriteDatesAndTimesAsTheirPeopleDo) {
    const struct {
        std::u16string_view name, shortDate, separator, longDate, time, timeSeparator;
        int firstDay;
    } cases[] = {
        {u"en-US", u"m/d/yyyy", u"/", u"dddd, mmmm d, yyyy", u"h:nn:ss AMPM", u":", 1},
        {u"de-DE", u"dd/mm/yyyy", u".", u"dddd, d\\. mmmm yyyy", u"hh:nn:ss", u":", 2},
        {u"da-DK", u"dd/mm/yyyy", u".", u"dddd \"den\" d\\. mmmm yyyy", u"hh:nn:ss", u".", 2},
        {u"hu-HU", u"yyyy/mm/dd\\.", u". ", u"yyyy\\. mmmm d\\., dddd", u"h:nn:ss", u":", 2},
        {u"ko-KR", u"yyyy/m/d\\.", u". ", u"yyyy\\년 m\\월 d\\일 dddd", u"AMPM h:nn:ss", u":", 1},
        {u"ar-EG", u"d/m/yyyy", u"\u200F/", u"dddd\\، d mmmm yyyy", u"h:nn:ss AMPM", u":", 7},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(toUtf8(expected.name));
        const RegionalSettings& region = *findRegion(expected.name);
        EXPECT_EQ(region.ShortDateFormat, expected.shortDate);
        EXPECT_EQ(region.DateSeparator, expected.separator);
        EXPECT_EQ(region.LongDateFormat, expected.longDate);
        EXPECT_EQ(region.TimeFormat, expected.time);
        EXPECT_EQ(region.TimeSeparator, expected.timeSeparator);
        EXPECT_EQ(region.FirstDayOfWeek, expected.firstDay);
    }
    EXPECT_EQ(findRegion(u"pl-PL")->MonthNames[0], u"stycznia");  // inside a date, not the name on a calendar
    EXPECT_EQ(findRegion(u"en-GB")->WeekdayNames[0], u"Sunday");
    EXPECT_EQ(findRegion(u"de-DE")->AbbreviatedWeekdayNames[6], u"Sa.");
    EXPECT_EQ(findRegion(u"el-GR")->PmMarker, u"μ.μ.");
}
