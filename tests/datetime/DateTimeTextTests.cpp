#include "controls/datetime/DateTimeText.h"

#include <gtest/gtest.h>

#include <memory>

#include "controls/datetime/DateText.h"
#include "controls/datetime/TimeText.h"
#include "tests/datetime/DateTimeTesting.h"

namespace kel {
namespace {

using test::clock;
using test::day;

TEST(FieldValue, IsComparedWithWhatTheHostKeeps) {
    const Variant noon = Date{0.5};
    const struct {
        const char* name;
        Variant reference, value;
        bool changed;
        bool changedByStep;
    } cases[] = {
        {"never assigned", Empty{}, Empty{}, false, false},
        {"emptied", Empty{}, Null{}, true, true},
        {"midnight is zero", Empty{}, Date{0}, false, false},
        {"entered", Empty{}, noon, true, true},
        {"assigned at last", Null{}, Empty{}, true, false},
        {"the same", noon, noon, false, false},
        {"another", Date{1.5}, noon, true, true},
        {"as a number", 0.5, noon, false, false},
        {"as a short number", std::int16_t{2}, Date{3}, true, true},
        {"as a boolean", true, Date{-1}, false, false},
        {"as a text", u"12:00", noon, true, true},
        {"an empty text", u"", Empty{}, false, false},
        {"an object", ObjectPtr(), noon, true, true},
        {"left out", Missing{}, Empty{}, true, true},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        EXPECT_EQ(isChanged(test.reference, test.value), test.changed);
        if (const auto stepped = dateIn(test.value)) {
            EXPECT_EQ(isChangedByStep(test.reference, *stepped), test.changedByStep);
        }
    }
}

TEST(FieldBounds, TakeEachOtherAlong) {
    DateBounds bounds{day(2013, 1, 1), day(2013, 12, 31)};
    bounds.putMinimum(day(2014, 6, 1));
    EXPECT_EQ(bounds, (DateBounds{day(2014, 6, 1), day(2014, 6, 1)}));
    bounds.putMaximum(day(2015, 1, 1));
    EXPECT_EQ(bounds, (DateBounds{day(2014, 6, 1), day(2015, 1, 1)}));
    bounds.putMaximum(day(1850, 1, 1));
    EXPECT_EQ(bounds, (DateBounds{day(1850, 1, 1), day(1850, 1, 1)}));
}

TEST(FieldBounds, GoByTime) {
    const DateBounds day1850{{-18000.25}, {-18000.75}};  // before 1900 a later time of day is a lesser serial
    EXPECT_TRUE(day1850.contain({-18000.5}));
    EXPECT_EQ(day1850.clamp({-18000.125}), day1850.minimum);
    EXPECT_EQ(day1850.clamp({-18000.875}), day1850.maximum);

    // Of dates, the days alone.
    DateBounds dates{day(2013, 3, 10), {day(2013, 5, 20).Serial + 0.25}, BoundsCompare::ByDay};
    dates.putMinimum({day(2013, 5, 20).Serial + 0.5});
    EXPECT_EQ(dates.maximum.Serial, day(2013, 5, 20).Serial + 0.25);
    EXPECT_TRUE(dates.contain(day(2013, 5, 20)));
    EXPECT_EQ(dates.clamp(day(2013, 5, 21)), day(2013, 5, 20));

    const DateBounds crossed{day(2013, 5, 1), day(2013, 3, 1)};
    EXPECT_EQ(crossed.clamp(day(2013, 4, 1)), crossed.minimum) << "the lower bound comes first";
}

TEST(FieldValidity, IsExplained) {
    const DateBounds decade{day(2000, 1, 1), day(2010, 12, 31)};
    const FieldFormat dates{std::u16string(DefaultDateFormat)};
    const FieldFormat times{std::u16string(DefaultTimeFormat)};
    const FieldRules dateRules{dates, decade, defaultRegion()};
    EXPECT_EQ(validityOf(day(2005, 5, 5), decade, false), Validity::Valid);
    EXPECT_EQ(validityOf(std::nullopt, decade, true), Validity::Valid);

    const Validity outside = validityOf(day(2011, 5, 5), decade, true);
    EXPECT_EQ(toUtf8(complaint(DateMessages.of(outside), dateRules)),
              "This field only accepts dates from 01/01/2000 to 31/12/2010.");
    EXPECT_EQ(toUtf8(complaint(TimeMessages.of(outside), {times, {clock(8, 0), clock(17, 30)}, defaultRegion()})),
              "This field only accepts times from 08:00 am to 05:30 pm.");

    const Validity none = validityOf(std::nullopt, decade, false);
    EXPECT_EQ(toUtf8(complaint(DateMessages.of(none), dateRules)), "Please enter a valid date in this field.");
    EXPECT_EQ(toUtf8(complaint(TimeMessages.of(none), dateRules)), "Please enter a valid time in this field.");
    EXPECT_EQ(dates.show(std::nullopt, defaultRegion()), u"");
}

}  // namespace
}  // namespace kel
