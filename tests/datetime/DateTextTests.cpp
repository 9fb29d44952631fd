#include "controls/datetime/DateText.h"

#include <gtest/gtest.h>

#include "tests/datetime/DateTimeTesting.h"

namespace kel {
namespace {

using test::day;
using test::draw;
using Flag = KelDateDaysFlag;

const Date Today = day(2013, 3, 15);

DayPin pin(Flag flag) { return {flag, lastDayOfMonth}; }

/// A field under test; the parts of a step that tables leave alone.
struct Field {
    std::u16string format{DefaultDateFormat};
    Flag flag = Flag::Allow;
    DateBounds bounds = AllDates;
    RegionalSettings region = defaultRegion();

    FieldStep step(std::string_view before, std::optional<Date> value, int delta) const {
        const FieldFormat compiled(format);
        return stepDate(test::box(before, value), Today, delta, {compiled, bounds, region}, pin(flag));
    }
};

struct StepCase {
    const char* before;
    DateParts value;
    int delta;
    const char* after;
};

void checkSteps(const Field& field, std::initializer_list<StepCase> cases) {
    for (const StepCase& test : cases) {
        SCOPED_TRACE(::testing::Message() << toUtf8(field.format) << ": " << test.before << " by " << test.delta);
        EXPECT_EQ(draw(field.step(test.before, dateOf(test.value), test.delta)), test.after);
    }
}

TEST(DateSteps, MoveThePartAtTheCaret) {
    for (const char16_t* format : {u"dd/mm/yyyy", u"DD/MM/YYYY"}) {
        checkSteps({.format = format}, {
                                           {"|15/03/2013", {2013, 3, 15}, 1, "16|/03/2013"},
                                           {"15/|03/2013", {2013, 3, 15}, 1, "15/04|/2013"},
                                           {"15/0|3/2013", {2013, 3, 15}, 1, "15/04|/2013"},
                                           {"15/03/|2013", {2013, 3, 15}, 1, "15/03/2014|"},
                                           {"15/03/2013|", {2013, 3, 15}, -1, "15/03/2012|"},
                                           {"31/0|1/2013", {2013, 1, 31}, 1, "28/02|/2013"},
                                           {"|31/12/2013", {2013, 12, 31}, 1, "01|/01/2014"},
                                       });
    }
    checkSteps({.format = u"yyyy-mm-dd"}, {{"|2013-03-15", {2013, 3, 15}, 1, "2014|-03-15"}});
    checkSteps({.format = u"ddmmyyyy"}, {{"1503|2013", {2013, 3, 15}, 1, "16032013|"}});
}

TEST(DateSteps, CountTheSeparatorsOfTheFormatAsItIsWritten) {
    checkSteps({.format = u"dddd d mmmm yyyy"},
               {
                   {"F|riday 15 March 2013", {2013, 3, 15}, 1, "Saturday| 16 March 2013"},
                   {"Friday 15 |March 2013", {2013, 3, 15}, 1, "Monday 15 April| 2013"},
               });
    // Behind the year there is no further part of the date, so the day goes.
    checkSteps({.format = u"d/m/yyyy (q)"}, {{"15/3/2013 (|1)", {2013, 3, 15}, 1, "16/3/2013 (1|)"}});
}

TEST(DateSteps, KnowLettersAndSeparatorsOfOtherScripts) {
    Field german{.format = u"d. mmmm yyyy", .region = *findRegion(u"de-DE")};
    checkSteps(german, {{"15. Fe|bruar 2013", {2013, 2, 15}, 1, "15. März| 2013"},
                        {"15. März |2013", {2013, 3, 15}, 1, "15. März 2014|"}});
    german.format = u"d mmm yyyy";  // the full stop of an abbreviation counts, in the text alone
    checkSteps(german, {{"15 J|an. 2013", {2013, 1, 15}, 1, "15 Feb|. 2013"},
                        {"15 Jan.| 2013", {2013, 1, 15}, 1, "15 Feb.| 2013"},
                        {"15 Jan. 20|13", {2013, 1, 15}, 1, "15 Jan. 2014|"},
                        {"15.4.2013|", {2013, 4, 15}, 1, "16| Apr. 2013"}});
    german.format = u"mmm d yyyy";
    checkSteps(german, {{"Jan. 1|5 2013", {2013, 1, 15}, 1, "Jan. 16| 2013"}});
    checkSteps({.region = *findRegion(u"sk-SK")}, {{"15.| 03. 2013", {2013, 3, 15}, 1, "15. 04|. 2013"},
                                                   {"15. 03|. 2013", {2013, 3, 15}, 1, "15. 04|. 2013"},
                                                   {"15. 03. 2|013", {2013, 3, 15}, 1, "15. 03. 2014|"}});
    checkSteps({.flag = Flag::FirstDay, .region = *findRegion(u"sk-SK")}, {{"15|", {2013, 3, 15}, 1, "01. 04|. 2013"}});

    // The caret ends up in front of the next separator, and what it passes on the way is none.
    Field separated;
    for (const char16_t* separator :
         {u"/", u"-", u".", u" ", u",", u"\u00A0", u"°", u"\u060C", u"–", u"、", u"\u200F/"}) {
        separated.region.DateSeparator = separator;
        const auto written = [&](const char* month) {
            std::string text = "15?" + std::string(month) + "?2013";
            for (std::size_t at = text.rfind('?'); at != std::string::npos; at = text.rfind('?'))
                text.replace(at, 1, toUtf8(separator));
            return text;
        };
        EXPECT_EQ(draw(separated.step(written("0|3"), day(2013, 3, 15), 1)), written("04|"));
    }
    Field named{.format = u"d mmmm yyyy"};
    for (const char16_t* month :
         {u"März", u"Mar\u0301s", u"März3", u"марта", u"مارس", u"मार्च", u"มีนาคม", u"三月", u"٣"}) {
        named.region.MonthNames[2] = month;
        EXPECT_EQ(draw(named.step("15 |April 2013", day(2013, 4, 15), -1)), "15 " + toUtf8(month) + "| 2013");
    }
}

TEST(DateSteps, FindThePartsThatAFormatShows) {
    checkSteps({.format = u"d \"de\" mmmm \"de\" yyyy"},
               {
                   {"15| de March de 2013", {2013, 3, 15}, 1, "16| de March de 2013"},
                   {"15 d|e March de 2013", {2013, 3, 15}, 1, "15 de April| de 2013"},
                   {"15 de March |de 2013", {2013, 3, 15}, 1, "15 de March de 2014|"},
                   {"15/3/20|13", {2013, 3, 15}, 1, "16| de March de 2013"},
               });
    checkSteps({.format = u"\"Date: \"dd/mm/yyyy"}, {{"|Date: 15/03/2013", {2013, 3, 15}, 1, "Date: 16|/03/2013"}});
    checkSteps({.format = u"dd/mm/yyyy hh:mm"}, {{"15/0|3/2013 00:00", {2013, 3, 15}, 1, "15/04|/2013 00:00"},
                                                 {"15/03/2013 00:|00", {2013, 3, 15}, 1, "16|/03/2013 00:00"}});
    checkSteps({.format = u"dd.mm;yyyy"}, {{"15.|03", {2013, 3, 15}, 1, "15.04|"}});
    checkSteps({.format = u"aaaa, oooo"}, {{"Fri|day, March", {2013, 3, 15}, 1, "Saturday|, March"},
                                           {"Friday, |March", {2013, 3, 15}, 1, "Monday, April|"}});
    checkSteps({.format = u"\"From\" d mmm", .flag = Flag::FirstDay},
               {{"From 1| Mar", {2013, 3, 1}, 1, "From 1| Apr"}, {"march|", {2013, 3, 1}, 1, "From 1 Apr|"}});
    checkSteps({.format = u"Standard"}, {{"41,34|8.00", {2013, 3, 15}, 1, "41,34|9.00"}});

    // Names of several words, and years that come first.
    Field wordy{.format = u"Long Date"};
    wordy.region.LongDateFormat = u"dddd, d mmmm, yyyy";
    wordy.region.WeekdayNames = {u"", u"Thứ Hai", u"", u"", u"", u"Thứ Sáu", u"Thứ Bảy"};
    wordy.region.MonthNames[2] = u"tháng 3";
    wordy.region.MonthNames[3] = u"tháng 4";
    checkSteps(wordy, {{"Thứ |Sáu, 15 tháng 3, 2013", {2013, 3, 15}, 1, "Thứ Bảy|, 16 tháng 3, 2013"},
                       {"Thứ Sáu, 15 tháng |3, 2013", {2013, 3, 15}, 1, "Thứ Hai, 15 tháng 4|, 2013"}});
    checkSteps({.format = u"Long Date", .region = *findRegion(u"es-ES")},
               {{"viernes, 15 de |marzo de 2013", {2013, 3, 15}, 1, "lunes, 15 de abril| de 2013"}});
    checkSteps({.format = u"Short Date", .region = *findRegion(u"ar-EG")},
               {{"١٥\u200F/|٣\u200F/٢٠١٣", {2013, 3, 15}, 1, "١٥\u200F/٤|\u200F/٢٠١٣"},
                {"١٥\u200F|/٣\u200F/٢٠١٣", {2013, 3, 15}, 1, "١٦|\u200F/٣\u200F/٢٠١٣"}});
}

TEST(DateSteps, MoveTheDayOfATextThatIsNotAsShown) {
    checkSteps({}, {{"15/3/201|3", {2013, 3, 15}, 1, "16|/03/2013"}, {"mar 1|5", {2013, 3, 15}, -1, "14|/03/2013"}});
    checkSteps({.format = u"ddd dd/mm/yyyy"}, {{"15/0|3/2013", {2013, 3, 15}, 1, "Sat 16|/03/2013"}});
    checkSteps({.format = u"mm/yyyy"}, {{"1/2013|", {2013, 1, 31}, 1, "02|/2013"}});
}

TEST(DateSteps, NeverMoveAPinnedDay) {
    checkSteps({.flag = Flag::FirstDay}, {
                                             {"|01/03/2013", {2013, 3, 1}, 1, "01|/04/2013"},
                                             {"|15/03/2013", {2013, 3, 15}, 1, "01/04|/2013"},
                                         });
    checkSteps({.flag = Flag::LastDay}, {
                                            {"31/0|1/2013", {2013, 1, 31}, 1, "28/02|/2013"},
                                            {"15/03/2013|", {2013, 3, 15}, -1, "28/02|/2013"},
                                        });
    checkSteps({.flag = Flag::BirthDay}, {{"|15/03/2013", {2013, 3, 15}, 1, "16|/03/2013"}});
}

TEST(DateSteps, LeadToTodayFirst) {
    const struct {
        Field field;
        const char* before;
        const char* after;
    } cases[] = {
        {{}, "|", "15|/03/2013"},
        {{}, "no date|", "15|/03/2013"},
        {{.flag = Flag::FirstDay}, "|", "01/03|/2013"},
        {{.flag = Flag::LastDay}, "|", "31/03|/2013"},
        {{.bounds = {day(2014, 1, 1), day(2014, 12, 31)}}, "|", "01|/01/2014"},
    };
    for (const auto& test : cases) {
        const FieldStep step = test.field.step(test.before, std::nullopt, -1);
        EXPECT_EQ(draw(step), test.after);
        EXPECT_TRUE(step.isFirst);
    }
    EXPECT_FALSE(Field().step("|15/03/2013", Today, 1).isFirst);
}

TEST(DateSteps, StopAtTheBoundsBeforeTheDayIsPinned) {
    const DateBounds spring{day(2013, 3, 10), day(2013, 5, 20)};
    checkSteps({.bounds = spring}, {
                                       {"15/0|5/2013", {2013, 5, 15}, 1, "20/05|/2013"},
                                       {"10|/03/2013", {2013, 3, 10}, -1, "10|/03/2013"},
                                       {"|01/01/2000", {2000, 1, 1}, 1, "10|/03/2013"},
                                   });
    checkSteps({.flag = Flag::LastDay, .bounds = spring}, {{"30/0|4/2013", {2013, 4, 30}, 1, "31/05|/2013"}});
    checkSteps({.flag = Flag::FirstDay, .bounds = spring}, {{"01/0|4/2013", {2013, 4, 1}, -1, "01/03|/2013"}});
}

TEST(DateSteps, StayAtTheEndsOfTheCalendar) {
    checkSteps({}, {
                       {"|31/12/9999", {9999, 12, 31}, 1, "31|/12/9999"},
                       {"15/03/|9999", {9999, 3, 15}, 1, "15/03/9999|"},
                       {"|01/01/100", {100, 1, 1}, -1, "01|/01/100"},
                   });
    checkSteps({.flag = Flag::LastDay}, {{"01/12/9999|", {9999, 12, 1}, 1, "31/12|/9999"}});
}

TEST(Dates, ArePinnedByTheRunTimeObject) {
    const DayPin payday{Flag::LastDay, [](Date date) { return Date{firstDayOfMonth(date).Serial + 24}; }};
    const FieldFormat format{std::u16string(DefaultDateFormat)};
    const BoxState box{u"31/03/2013", 0, day(2013, 3, 31)};
    const FieldStep step = stepDate(box, Today, 1, {format, AllDates, defaultRegion()}, payday);
    EXPECT_EQ(step.value, day(2013, 4, 25));
    EXPECT_EQ(step.caret, 2U) << "what the calendar's last day shows is the field's own text";

    EXPECT_EQ(pinned(Today, {Flag::FirstDay, {}}), day(2013, 3, 1)) << "for that none is needed";
}

TEST(Dates, AreCommittedWithinTheBoundsAndThenPinned) {
    const DateBounds bounds{day(2013, 3, 10), day(2013, 5, 20)};
    EXPECT_EQ(committed(day(2013, 3, 9), bounds, pin(Flag::Allow)), bounds.minimum);
    EXPECT_EQ(committed(Today, bounds, pin(Flag::Allow)), Today);
    EXPECT_EQ(committed(day(2014, 1, 1), bounds, pin(Flag::LastDay)), day(2013, 5, 31));
}

TEST(Dates, AreSavedInEightDigitsOrAsNow) {
    EXPECT_EQ(savedDate(Today, Today), u"Now");
    EXPECT_EQ(savedDate(day(2014, 3, 5), Today), u"05032014");
    EXPECT_EQ(savedDate(std::nullopt, Today), u"");
    for (const Date date : {day(2013, 4, 5), day(2020, 12, 5), AllDates.minimum, AllDates.maximum})
        EXPECT_EQ(loadedDate(savedDate(date, Today)), Variant(date));
    EXPECT_EQ(loadedDate(u"20131231"), Variant(Null{}));
    for (const std::u16string text : {u"Now", u"", u"15/3/2013", u"150313", u"150320130"})
        EXPECT_EQ(loadedDate(text), Variant(text));
}

TEST(DateKeys, StepMoveOnOrWrite) {
    using enum KeyAnswer;
    const struct {
        char32_t key;
        KeyAnswer effect;
    } cases[] = {
        {8, Passes},    {27, Passes},   {13, MovesOn},  {U'+', StepsUp},     {U'-', StepsDown},       {22, Writes},
        {U'/', Writes}, {U'5', Writes}, {U'x', Writes}, {U'\u2212', Writes}, {U'\U0001F600', Writes},
    };
    for (const auto& test : cases) EXPECT_EQ(answerToDateCharacter(test.key), test.effect) << unsigned{test.key};
}

}  // namespace
}  // namespace kel
