#include "values/Calendar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kel {
namespace {

Date at(std::int32_t year, std::int32_t month, std::int32_t day, double time = 0) {
    return withTime(*dateOf({year, month, day}), time);
}

/// Counted by hand: every day is the one after the day before.
TEST(Calendar, CountsEveryDay) {
    DateParts day{FirstYear, 1, 1};
    double serial = -657434;
    std::int32_t weekday = 6;  // 1 January 100 was a Friday
    std::int32_t dayOfYear = 1;
    while (day.year <= LastYear) {
        const bool isLeap = day.year % 4 == 0 && (day.year % 100 != 0 || day.year % 400 == 0);
        const std::int32_t shortMonth = isLeap ? 29 : 28;
        const bool isLong = day.month < 8 ? day.month % 2 == 1 : day.month % 2 == 0;
        const std::int32_t days = day.month == 2 ? shortMonth : isLong ? 31 : 30;
        const Date date{serial};
        const bool isCounted = datePartsOf(date) == day && dateOf(day) == date && weekdayOf(date) == weekday &&
                               dayOfYearOf(date) == dayOfYear;
        ASSERT_TRUE(isCounted) << day.year << " " << day.month << " " << day.day;
        if (day.day == 15) {
            ASSERT_EQ(firstDayOfMonth(date).Serial, serial - 14);
            ASSERT_EQ(lastDayOfMonth(date).Serial, serial - 15 + days);
            ASSERT_FALSE(dateOf({day.year, day.month, days + 1}));
        }
        ++serial;
        weekday = weekday % 7 + 1;
        ++dayOfYear;
        if (++day.day <= days) continue;
        day.day = 1;
        if (++day.month <= 12) continue;
        day = {day.year + 1, 1, 1};
        dayOfYear = 1;
    }
    EXPECT_EQ(serial, 2958466);
}

TEST(Calendar, RefusesWhatIsNoDay) {
    constexpr std::int32_t Far = std::numeric_limits<std::int32_t>::max();
    for (const DateParts& parts :
         {DateParts{99, 12, 31}, DateParts{10000, 1, 1}, DateParts{2013, 0, 1}, DateParts{2013, 13, 1},
          DateParts{2013, 1, 0}, DateParts{1900, 2, 29}, DateParts{-Far, -Far, -Far}, DateParts{Far, Far, Far}})
        EXPECT_FALSE(dateOf(parts)) << parts.year << " " << parts.month << " " << parts.day;
    for (const TimeParts& parts : {TimeParts{24, 0, 0}, TimeParts{0, 60, 0}, TimeParts{0, 0, 60}, TimeParts{-1, 0, 0}})
        EXPECT_FALSE(timeOf(parts));
}

TEST(Calendar, StepsKeepTheTimeAndTheMonth) {
    const double noon = 0.5;
    EXPECT_EQ(addMonths(at(2013, 1, 31, noon), 1), at(2013, 2, 28, noon));
    EXPECT_EQ(addMonths(at(2012, 3, 31), -1), at(2012, 2, 29));
    EXPECT_EQ(addMonths(at(2012, 12, 15), 1), at(2013, 1, 15));
    EXPECT_EQ(addMonths(at(2013, 1, 15), -13), at(2011, 12, 15));
    EXPECT_EQ(addYears(at(2012, 2, 29), 1), at(2013, 2, 28));
    EXPECT_EQ(addYears(at(1800, 2, 28, noon), 4), at(1804, 2, 28, noon));
    EXPECT_EQ(addDays(at(1899, 12, 29, noon), 2), at(1899, 12, 31, noon)) << "across day 0";
    EXPECT_EQ(addDays(at(1899, 12, 31, noon), -2)->Serial, -1.5);
}

TEST(Calendar, StepsEndAtItsEnds) {
    constexpr std::int32_t Far = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t Farther = std::numeric_limits<std::int64_t>::max();
    const Date first = at(100, 1, 1), last = at(9999, 12, 31);
    EXPECT_FALSE(addDays(first, -1));
    EXPECT_FALSE(addMonths(last, 1));
    EXPECT_FALSE(addYears(first, -1));
    EXPECT_FALSE(addSeconds(first, -1));
    EXPECT_FALSE(addSeconds(last, SecondsPerDay));
    for (const std::int32_t far : {Far, -Far - 1}) {
        EXPECT_FALSE(addDays(last, far) || addMonths(last, far) || addYears(last, far));
        EXPECT_FALSE(addSeconds(last, far > 0 ? Farther : -Farther - 1));
    }
    EXPECT_EQ(addSeconds(last, SecondsPerDay - 1)->Serial, at(9999, 12, 31, 86399.0 / 86400).Serial);
}

TEST(Calendar, SecondsStayWhole) {
    Date time = *timeOf({0, 0, 0});
    for (std::int32_t second = 1; second < SecondsPerDay; ++second) {
        time = *addSeconds(time, 1);
        ASSERT_EQ(time, *timeOf({second / 3600, second / 60 % 60, second % 60}));
    }
    EXPECT_EQ(addSeconds(time, 1)->Serial, 1) << "the day after";
    EXPECT_EQ(addSeconds({0}, -1)->Serial, -1 - 86399.0 / 86400) << "the day before counts its time upwards";
    EXPECT_EQ(addSeconds({-1.25}, 3600)->Serial, -1 - 7.0 / 24);
}

TEST(Calendar, NegativeSerialsCountTimeAwayFromZero) {
    const Date inOrder[] = {{-657434}, {-657434.5}, {-657433}, {-2}, {-1}, {-1.25}, {-1.75}, {0}, {0.25}, {1}, {1.5}};
    for (std::size_t left = 0; left < std::size(inOrder); ++left)
        for (std::size_t right = 0; right < std::size(inOrder); ++right)
            EXPECT_EQ(isEarlier(inOrder[left], inOrder[right]), left < right) << left << " " << right;
    EXPECT_FALSE(isEarlier({-0.25}, {0.25}) || isEarlier({0.25}, {-0.25})) << "day 0 has one quarter only";
    EXPECT_EQ(timePartsOf({-1.25}), (TimeParts{6, 0, 0}));
    EXPECT_EQ(timePartsOf({5 + 86399.6 / 86400}), (TimeParts{23, 59, 59}));
}

TEST(Calendar, TakesAnyDouble) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const DateParts first{100, 1, 1}, last{9999, 12, 31};
    const struct {
        double serial;
        DateParts day;
    } cases[] = {{Infinity, last}, {-Infinity, first}, {1e300, last}, {-1e300, first},   {2958466, last},
                 {-657435, first}, {std::nan(""), {}}, {-0.0, {}},    {2958465.99, last}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.serial);
        const Date date{test.serial};
        EXPECT_EQ(datePartsOf(date), test.day);
        EXPECT_EQ(dayOf(date), dateOf(test.day));
        EXPECT_LT(timePartsOf(date).hour, 24);
        EXPECT_GE(dayOfYearOf(date), 1);
        EXPECT_TRUE(addDays(date, 0) && addMonths(date, 0) && addYears(date, 0) && addSeconds(date, 0));
        EXPECT_FALSE(isEarlier(date, date));
        EXPECT_EQ(datePartsOf(firstDayOfMonth(date)).day, 1);
        EXPECT_GE(datePartsOf(lastDayOfMonth(date)).day, 28);
    }
    EXPECT_TRUE(isInCalendar({-657434.9}) && isInCalendar({2958465.9}));
    EXPECT_FALSE(isInCalendar({2958466}) || isInCalendar({-657435}) || isInCalendar({std::nan("")}));
}

}  // namespace
}  // namespace kel
