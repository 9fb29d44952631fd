#include "controls/datetime/TimeText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/datetime/DateTimeTesting.h"

namespace kel {
namespace {

using test::clock;
using test::draw;

FieldStep step(const char16_t* format, const char* before, std::optional<Date> value, int delta,
               const DateBounds& bounds = AllTimes) {
    const FieldFormat compiled(format);
    return stepTime(test::box(before, value), clock(10, 15, 30), delta, {compiled, bounds, defaultRegion()});
}

struct TimeStepCase {
    const char* before;
    TimeParts value;
    int delta;
    const char* after;
};

void checkSteps(const char16_t* format, std::initializer_list<TimeStepCase> cases) {
    for (const TimeStepCase& test : cases) {
        SCOPED_TRACE(::testing::Message() << toUtf8(format) << ": " << test.before << " by " << test.delta);
        EXPECT_EQ(draw(step(format, test.before, timeOf(test.value), test.delta)), test.after);
    }
}

TEST(TimeSteps, MoveThePartAtTheCaret) {
    for (const char16_t* format : {u"hh:nn:ss", u"HH:NN:SS"}) {
        checkSteps(format, {
                               {"|10:15:30", {10, 15, 30}, 1, "11|:15:30"},
                               {"10:|15:30", {10, 15, 30}, 1, "10:16|:30"},
                               {"10:15:|30", {10, 15, 30}, 1, "10:15:31|"},
                               {"10:15:30|", {10, 15, 30}, -1, "10:15:29|"},
                               {"10:15:59|", {10, 15, 59}, 1, "10:16:00|"},
                               {"10:5|9:30", {10, 59, 30}, 1, "11:00|:30"},
                           });
    }
    checkSteps(u"hh:nn am/pm", {
                                   {"|11:15 am", {11, 15, 0}, 1, "12|:15 pm"},
                                   {"11:|15 am", {11, 15, 0}, 1, "11:16| am"},
                                   {"11:15 am|", {11, 15, 0}, -1, "11:14| am"},
                               });
}

TEST(TimeSteps, TakeTheCaretForAPlaceInTheFormat) {
    checkSteps(u"h:nn:ss", {{"10:1|5:30", {10, 15, 30}, 1, "10:1|6:30"},
                            {"10:15|:30", {10, 15, 30}, 1, "10:15:31|"},
                            {"1:15|:30", {1, 15, 30}, 1, "1:16|:30"}});
    checkSteps(u"", {{"|10:15:30", {10, 15, 30}, 1, "1|0:16:30"}});
    checkSteps(u"hh", {{"10|", {10, 15, 0}, 1, "11|"}, {"9|", {9, 15, 0}, 1, "|09"}});
    EXPECT_EQ(step(u"hh:nn:ss", "10:15:30|", clock(10, 15, 30), 1).caret, 9U) << "the end, however long the text";
}

TEST(TimeSteps, FindThePartsThatAFormatShows) {
    checkSteps(u"hh \\h nn", {{"10| h 15", {10, 15, 0}, 1, "11| h 15"}, {"10 h| 15", {10, 15, 0}, 1, "10 h 16|"}});
    checkSteps(u"\"The hours: \"h:nn \"Uhr\"", {{"|The hours: 9:59 Uhr", {9, 59, 0}, 1, "The hours: 10|:59 Uhr"},
                                                {"The hours: 9:5|9 Uhr", {9, 59, 0}, 1, "The hours: 10:00| Uhr"},
                                                {"The hours: 9:59 U|hr", {9, 59, 0}, 1, "The hours: 10:00| Uhr"},
                                                {"9.59|", {9, 59, 0}, 1, "The hours: 10:00| Uhr"}});
    checkSteps(u"Long Time",
               {{"10:1|5:30", {10, 15, 30}, 1, "10:16|:30"}, {"10:15:30|", {10, 15, 30}, 1, "10:15:31|"}});
    checkSteps(u"Short Date", {{"30|/12/1899", {10, 15, 0}, 1, "30|/12/1899"}});
}

TEST(TimeSteps, MoveTheMinuteOfATextThatIsNotAsShown) {
    checkSteps(u"hh:nn:ss", {{"|9:15", {9, 15, 0}, 1, "09:16|:00"}, {"0915|", {9, 15, 0}, -1, "09:14|:00"}});
}

TEST(TimeSteps, LeadToTheCurrentTimeFirst) {
    const FieldStep first = step(u"hh:nn:ss", "|", std::nullopt, -1);
    EXPECT_EQ(draw(first), "10:15|:30");
    EXPECT_TRUE(first.isFirst);
    EXPECT_EQ(step(u"hh:nn:ss", "noon|", std::nullopt, 1, {clock(12, 0), clock(13, 0)}).value, clock(12, 0));
    EXPECT_FALSE(step(u"hh:nn:ss", "|10:15:30", clock(10, 15, 30), 1).isFirst);
}

TEST(TimeSteps, StopAtTheBounds) {
    checkSteps(u"hh:nn:ss", {
                                {"23:5|9:00", {23, 59, 0}, 1, "23:59|:59"},
                                {"00:00:00|", {0, 0, 0}, -1, "00:00:00|"},
                                {"|00:30:00", {0, 30, 0}, -1, "00|:00:00"},
                            });
    const DateBounds office{clock(8, 0), clock(17, 30)};
    EXPECT_EQ(step(u"hh:nn", "|17:15", clock(17, 15), 1, office).value, office.maximum);
    EXPECT_EQ(step(u"hh:nn", "|08:15", clock(8, 15), -1, office).value, office.minimum);
}

TEST(TimeFormat, WritesMinutesBehindHours) {
    const struct {
        const char16_t* given;
        const char16_t* corrected;
    } cases[] = {
        {u"hh:mm", u"hh:nn"},
        {u"HH:MM", u"HH:NN"},
        {u"h:mM", u"h:nn"},
        {u"h:Mm am/pm", u"h:NN am/pm"},
        {u"dd/mm hh:mm", u"dd/mm hh:nn"},
        {u"hh:mmm", u"hh:nnm"},
        {u"hh:mm hh:mm", u"hh:nn hh:mm"},
        {u"mm:ss", u"mm:ss"},
        {u"hh:nn", u"hh:nn"},
        {u"", u""},
    };
    for (const auto& test : cases) EXPECT_EQ(toUtf8(correctedTimeFormat(test.given)), toUtf8(test.corrected));
}

TEST(TimeBound, IsATimeOfDay) {
    const struct {
        double put;
        Date kept;
    } cases[] = {
        {1.75, clock(18, 0)},
        {2.25, clock(6, 0)},
        {-1.25, clock(18, 0)},
        {41639.1, clock(2, 24)},
        {2958465 + clock(23, 59, 59).Serial, clock(23, 59, 59)},
        {41639 + 0.5 / SecondsPerDay + clock(2, 24).Serial, {41639 + 0.5 / SecondsPerDay + 0.1 - 41639}},
        {-1e-300, {0}},
        {1 - 1e-11, {1 - 1e-11}},
        {std::numeric_limits<double>::infinity(), {0}},
        {std::nan(""), {0}},
    };
    for (const auto& test : cases) EXPECT_EQ(timeBound({test.put}).Serial, test.kept.Serial) << test.put;
    EXPECT_EQ(clockTime(36930.999), clock(10, 15, 30));
    EXPECT_EQ(clockTime(86400), clock(23, 59, 59)) << "a clock that rounds up to midnight names no later day";
}

TEST(TimeKeys, StepMoveOnWriteOrAreRefused) {
    using enum KeyAnswer;
    const struct {
        const char32_t* keys;
        KeyAnswer effect;
    } cases[] = {
        {U"\b\x1B\x16\x03\t\n", Passes},
        {U"\r", MovesOn},
        {U"+", StepsUp},
        {U"-", StepsDown},
        {U"0123456789.:AaPpMm\u0660\u0665\u0669", Writes},
        {U"xh /,;'n\x7F\u00A0\u066A\u06F5\u2212\U0001F600", Refused},
    };
    for (const auto& test : cases) {
        for (const char32_t key : std::u32string_view(test.keys))
            EXPECT_EQ(answerToTimeCharacter(key, U'\u0660'), test.effect) << unsigned{key};
    }
}

}  // namespace
}  // namespace kel
