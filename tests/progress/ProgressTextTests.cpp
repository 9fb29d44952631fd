#include "controls/progress/ProgressText.h"

#include <gtest/gtest.h>

#include "values/Text.h"

namespace kel {
namespace {

constexpr std::int32_t Lowest = INT32_MIN, Highest = INT32_MAX;

TEST(ProgressText, BarAndPercentage) {
    struct {
        const char* what;
        ProgressRange range;
        std::int32_t value;
        std::int32_t width, bar;
        const char16_t* text;
    } const cases[] = {
        {"above the last", {1, 100}, 101, 4500, 4500, u"100%"},
        {"the first of a range elsewhere", {501, 510}, 501, 1000, 100, u"10%"},
        {"a single value", {7, 7}, 7, 1000, 1000, u"100%"},
        {"half a twip and half a per cent go down to the even", {1, 200}, 1, 100, 0, u"0%"},
        {"and up to the even", {1, 200}, 3, 100, 2, u"2%"},
        {"no surface", {1, 100}, 50, 0, 0, u"50%"},
        {"all numbers, the middle", {Lowest, Highest}, -1, 4500, 2250, u"50%"},
        {"all numbers, the highest", {Lowest, Highest}, Highest, Highest, Highest, u"100%"},
        {"the lowest alone", {Lowest, Lowest}, Lowest, 10, 10, u"100%"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const double share = test.range.share(test.value);
        EXPECT_EQ(nearestPart(share, test.width), test.bar);
        EXPECT_EQ(percentText(share), test.text);
    }
}

TEST(ProgressText, TimeLeft) {
    struct {
        const char* what;
        ProgressRange range;
        std::int32_t value;
        double elapsed;
        const char16_t* text;
        double goodFor;
    } const cases[] = {
        {"too early", {1, 100}, 25, 10, u"", 10},
        {"just late enough", {1, 100}, 25, 10.5, u" (32 seconds remaining)", 10},
        {"a quarter after half a minute", {1, 100}, 25, 30, u" (90 seconds remaining)", 10},
        {"91 seconds are minutes", {1, 2}, 1, 91, u" (2 minutes remaining)", 60},
        {"halves of minutes go up", {1, 2}, 1, 150, u" (3 minutes remaining)", 60},
        {"thousands of minutes", {1, 100}, 1, 3000, u" (4,950 minutes remaining)", 60},
        {"one second", {1, 50}, 49, 49, u" (1 seconds remaining)", 10},
        {"less than a second", {1, 100}, 99, 60, u"", 10},
        {"the pace is the value's, not the place's", {101, 200}, 150, 60, u"", 10},
        {"nothing done", {0, 100}, 0, 60, u"", 10},
        {"past midnight", {1, 100}, 50, -86000, u"", 10},
        {"all numbers", {Lowest, Highest}, Highest, 100, u" (2 minutes remaining)", 60},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const TimeLeft left = timeLeft(test.range, test.value, test.elapsed, defaultRegion());
        EXPECT_EQ(toUtf8(left.text), toUtf8(test.text));
        EXPECT_EQ(left.goodFor, test.goodFor);
    }
    EXPECT_EQ(timeLeft({1, 100}, 1, 3000, *findRegion(u"de-DE")).text, u" (4.950 minutes remaining)");
}

}  // namespace
}  // namespace kel
