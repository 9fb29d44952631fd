#include <gtest/gtest.h>

#include "values/Calendar.h"
#include "values/FormatExpression.h"
#include "values/Text.h"

namespace kel {
namespace {

Date moment(const DateParts& day, const TimeParts& time = {}) {
    return withTime(*dateOf(day), dayFractionOf(*timeOf(time)));
}

const Date Friday = moment({2013, 3, 15}, {9, 5, 7});
const Date Afternoon = moment({2013, 12, 1}, {21, 45, 30});

struct Case {
    std::u16string_view expression;
    std::string_view text;
    Date date = Friday;
};

void check(const std::vector<Case>& cases, std::u16string_view region = u"en-GB") {
    for (const Case& test : cases)
        EXPECT_EQ(toUtf8(FormatExpression(test.expression).format(test.date, *findRegion(region))), test.text)
            << toUtf8(test.expression);
}

TEST(DateFormat, ShowsEveryPart) {
    check({
        {u"d dd ddd dddd", "15 15 Fri Friday"},
        {u"d dd", "1 01", Afternoon},
        {u"m mm mmm mmmm", "3 03 Mar March"},
        {u"y yy yyyy", "74 13 2013"},
        {u"yy yyyy", "00 100", moment({100, 1, 1})},
        {u"q q", "1 1"},
        {u"h hh n nn s ss", "9 09 5 05 7 07"},
        {u"aaaa oooo", "Friday March"},
        {u"yyy ddddddd mmmmm", "1374 Friday, 15 March 201315 March3"},
        {u"dd/mm/yyyy", "31/12/9999", {1e300}},
        {u"d-m-yy", "28-12-99", {-2}},
        {u"hh:nn", "18:00", {-2.75}},
        {u"", "15/03/2013 09:05:07"},
    });
}

TEST(DateFormat, TakesMForMinutesBehindHoursOnly) {
    check({
        {u"h:m:s", "9:5:7"},
        {u"dd/mm hh:mm", "15/03 09:05"},
        {u"mm:ss", "03:07"},
        {u"hh:nn mm", "09:05 03"},
        {u"hh:mmm", "09:Mar"},
    });
}

TEST(DateFormat, AnyMarkerMakesHoursCountToTwelve) {
    check({
        {u"hh:nn am/pm", "09:05 am"},
        {u"h:nn AM/PM", "9:45 PM", Afternoon},
        {u"AMPM h", "pm 9", Afternoon},
        {u"ha/p", "9p", Afternoon},
        {u"h A/P", "12 A", {0}},
        {u"hh am/pm hh", "09 pm 09", Afternoon},
        {u"hh \"am/pm\"", "21 am/pm", Afternoon},
        {u"hh am/p", "21 a45/p", Afternoon},
        {u"ampm hh ttttt", "pm 09 21:45:30", Afternoon},
    });
    check({{u"ttttt", "9:45:30 PM", Afternoon}, {u"hh ttttt", "21 9:45:30 PM", Afternoon}}, u"en-US");
    check({{u"AMPM h:nn", "오후 9:45", Afternoon}}, u"ko-KR");
}

TEST(DateFormat, KnowsNamedFormatsAndTheRegions) {
    const Date midnight = moment({2013, 3, 5});
    check({
        {u"c", "15/03/2013 09:05:07"},
        {u"c", "05/03/2013", midnight},
        {u"general date", "06:00:00", {0.25}},
        {u"c", "00:00:00", {0}},
        {u"Long Date", "Friday, 15 March 2013"},
        {u"Medium Date", "15-Mar-13"},
        {u"Medium Time", "09:45 PM", Afternoon},
        {u"Short Time", "21:45", Afternoon},
        {u"Short Dates", "79ort 15ate7"},
    });
    check({{u"ddddd", "15.03.2013"}, {u"dddddd", "Freitag, 15. März 2013"}, {u"dd/mm/yy", "15.03.13"}}, u"de-DE");
    check({{u"d mmm", "15 3月"}, {u"dddddd", "2013年3月15日金曜日"}}, u"ja-JP");
    check({{u"hh:nn", "09.05"}}, u"fi-FI");
    check({{u"d mmmm yyyy", "١٥ مارس ٢٠١٣"}, {u"ttttt", "٩:٠٥:٠٧ ص"}}, u"ar-EG");
    EXPECT_EQ(FormatExpression(u"Short Date").format(2.0, defaultRegion()), u"01/01/1900")
        << "a number as a day serial";
}

TEST(DateFormat, KeepsLiteralsAndUsesTheFirstSection) {
    check({
        {u"\\d\\a\\y d", "day 15"},
        {u"\"on \"d\", month \"m", "on 15, month 3"},
        {u"d;m", "15"},
        {u"d\";\"m", "15;3"},
        {u";d", ""},
        {u"d.m,yyyy #0%", "15.3,2013 #0%"},
        {u"0.00", "41348.38"},
    });
}

TEST(DateFormat, ShowsLongTextsWhole) {
    RegionalSettings region = *findRegion(u"en-GB");
    for (const char16_t* separator : {u"/", u" -- "}) {
        region.DateSeparator = separator;
        for (std::size_t length = 1; length < 200; ++length) {
            const std::u16string words(length, u'x');
            const std::u16string expression = u'"' + words + u"\"/dd/\"" + words + u"\"//yyyymmmm";
            const std::u16string expected =
                words + separator + u"15" + separator + words + separator + separator + u"2013March";
            ASSERT_EQ(toUtf8(FormatExpression(expression).format(Friday, region)), toUtf8(expected));
        }
    }
}

TEST(DateFormat, CountsWeeksByEveryRule) {
    using enum WeekRule::FirstWeek;
    const WeekRule american{}, iso{2, WithFourDays}, full{2, FirstFull}, regional{0, WithFirstJanuary};
    const struct {
        DateParts day;
        WeekRule rule;
        std::string_view text;
    } cases[] = {
        {{2013, 1, 1}, american, "3 1"},    {{2013, 1, 6}, american, "1 2"}, {{2013, 12, 31}, american, "3 53"},
        {{2000, 12, 31}, american, "1 54"}, {{2005, 1, 1}, iso, "6 53"},     {{2005, 1, 2}, iso, "7 53"},
        {{2006, 1, 1}, iso, "7 52"},        {{2008, 12, 28}, iso, "7 52"},   {{2008, 12, 29}, iso, "1 1"},
        {{2008, 12, 31}, iso, "3 1"},       {{2009, 12, 31}, iso, "4 53"},   {{2010, 1, 3}, iso, "7 53"},
        {{2010, 1, 4}, iso, "1 1"},         {{2013, 1, 6}, full, "7 53"},    {{2013, 1, 7}, full, "1 1"},
        {{2012, 12, 31}, full, "1 53"},     {{2013, 12, 31}, full, "2 52"},  {{2013, 3, 15}, regional, "5 11"},
        {{100, 1, 1}, iso, "5 53"},
    };
    const FormatExpression weeks(u"w ww");
    for (const auto& test : cases)
        EXPECT_EQ(toUtf8(weeks.format(*dateOf(test.day), defaultRegion(), test.rule)), test.text)
            << test.day.year << " " << test.day.month << " " << test.day.day;
}

TEST(DateFormat, TakesStrangeRegionsAndLongTexts) {
    RegionalSettings strange = *findRegion(u"ar-EG");
    strange.ZeroDigit = 0x1D7CE;
    strange.ShortDateFormat = strange.LongDateFormat = strange.TimeFormat = u"dddddd ddddd ttttt c m \"";
    EXPECT_EQ(FormatExpression(std::u16string(1 << 16, u'd')).format(Friday, strange).empty(), false);
    EXPECT_EQ(FormatExpression(u"d").format(Friday, strange), u"\U0001D7CF\U0001D7D3");
}

}  // namespace
}  // namespace kel
