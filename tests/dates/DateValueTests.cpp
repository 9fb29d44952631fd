#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/runtime/RegionalServices.h"
#include "values/Calendar.h"

namespace kel {
namespace {

const Date Today = *dateOf({2013, 3, 14});
const Date March15 = *dateOf({2013, 3, 15});

TEST(RuntimeDates, TakeEveryKindOfValue) {
    const struct {
        const char* what;
        Variant value;
        Variant date;
        Variant time;
    } cases[] = {
        {"a text of a date", std::u16string(u"15/3/2013"), March15, Null{}},
        {"a text of a time", std::u16string(u"6 pm"), Null{}, Date{0.75}},
        {"the empty text", std::u16string(), Null{}, Null{}},
        {"a date", March15, March15, Date{0}},
        {"a date and time", Date{41348.75}, March15, Date{0.75}},
        {"a date before day 0", Date{-1.75}, Date{-1}, Date{0.75}},
        {"an integer", std::int16_t{2}, Date{2}, Date{0}},
        {"a long integer", std::int32_t{41348}, March15, Date{0}},
        {"nearly noon", 0.4999999, Date{0}, Date{0.5}},
        {"the last day", 2958465.5, Date{2958465}, Date{0.5}},
        {"the day after", 2958466.0, Null{}, Null{}},
        {"not a number", std::nan(""), Null{}, Null{}},
        {"True", true, Null{}, Null{}},
        {"nothing yet", Empty{}, Null{}, Null{}},
        {"no value", Null{}, Null{}, Null{}},
        {"an array", StringArray{u"15/3/2013"}, Null{}, Null{}},
    };
    RegionalServices services;
    const auto dates = makeRuntime(services)->RuntimeDates();
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        EXPECT_EQ(dates->ParseDate(test.value, u"dd/mm/yyyy", Today, false), test.date);
        EXPECT_EQ(dates->ParseTime(test.value), test.time);
    }
}

TEST(RuntimeDates, FollowRegionFormatAndBirthdaySwitch) {
    RegionalServices services;
    const auto dates = makeRuntime(services)->RuntimeDates();
    EXPECT_EQ(dates->ParseDate(std::u16string(u"15/3/13"), u"d/m/yy", Today, false), Variant(March15));
    EXPECT_EQ(dates->ParseDate(std::u16string(u"15/3/13"), u"d/m/yy", Today, true), Variant(*dateOf({1913, 3, 15})));
    EXPECT_EQ(dates->ParseDate(std::u16string(u"NOW"), u"m/d/yy", Date{41348.5}, false), Variant(March15));
    services.Region = findRegion(u"de-DE");
    EXPECT_EQ(dates->ParseDate(std::u16string(u"15. März"), u"d/m/yy", Today, false), Variant(March15));
    EXPECT_EQ(dates->LastDayOfMonth({41348.5}), *dateOf({2013, 3, 31}));
}

}  // namespace
}  // namespace kel
