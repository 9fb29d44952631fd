#include "values/Decimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "values/LongDivision.h"

namespace kel {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Largest = std::numeric_limits<double>::max();
constexpr double Smallest = std::numeric_limits<double>::denorm_min();
const double NoNumber = std::nan("");

TEST(Decimal, RoundsHalfAwayFromZeroOnTheShortestText) {
    const struct {
        double number;
        std::int32_t places;
        double result;
    } cases[] = {
        {1.005, 2, 1.01},
        {1.0049999999999997, 2, 1.0},
        {-2.5, 0, -3},
        {0.49999999999999994, 0, 0},
        {9.995, 2, 10},
        {4503599627370497.5, 0, 4503599627370498},
        {0.1 + 0.2, 16, 0.3},
        {123.456, 16, 123.456},
        {1e-300, 16, 0},
        {Smallest, 324, Smallest},
        {5e-17, 16, 1e-16},
        {1250, -2, 1300},
        {49, -2, 0},
        {Largest, -308, Largest},
        {Largest, 32767, Largest},
        {Largest, std::numeric_limits<std::int32_t>::min(), 0},
        {12.5, std::numeric_limits<std::int32_t>::max(), 12.5},
        {NoNumber, 2, 0},
        {Infinity, 2, Largest},
        {-Infinity, 2, -Largest},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.number << " to " << test.places);
        EXPECT_EQ(roundDecimally(test.number, test.places), test.result);
    }
    EXPECT_FALSE(std::signbit(roundDecimally(-0.001, 2))) << "a field would show a sign before a zero";
    EXPECT_FALSE(std::signbit(roundDecimally(-0.0, 2)));
}

/// The two ways to the shortest text of a double agree.
TEST(Decimal, IsTheSameByDivisionAsByTables) {
    const auto check = [](double size) {
        Decimal divided = shortestByDivision(size);
        Decimal wanted = shortestDecimal(size);
        for (Decimal* const each : {&divided, &wanted})
            for (; each->Digits % 10 == 0; ++each->Exponent) each->Digits /= 10;
        EXPECT_EQ(divided.Digits, wanted.Digits) << size;
        EXPECT_EQ(divided.Exponent, wanted.Exponent) << size;
    };
    for (int power = -1074; power < 1024; ++power)
        for (const double toward : {0.0, Infinity, std::ldexp(1.0, power)})
            if (const double size = std::nextafter(std::ldexp(1.0, power), toward); size > 0 && size < Infinity)
                check(size);
    std::mt19937_64 random(5);
    for (int i = 0; i < 20'000; ++i)
        if (const double size = std::fabs(std::bit_cast<double>(random())); size > 0 && size < Infinity) check(size);
}

/// Where it is hardest to say which of two doubles a text is nearer to: at, and a little beside, the middle of both.
TEST(Decimal, ReadsTheSameByDivisionAsByTables) {
    const auto check = [](double size) {
        const long double middle = (static_cast<long double>(size) + std::nextafter(size, Infinity)) / 2;
        for (const int digits : {17, 20, 770}) {
            std::string text(800, '\0');
            text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%.*Le", digits - 1, middle)));
            const std::string row = text[0] + text.substr(2, static_cast<std::size_t>(digits - 1));
            const int exponent = std::atoi(text.c_str() + text.find('e') + 1) + 1;
            EXPECT_EQ(nearestByDivision(row, exponent), std::strtod(text.c_str(), nullptr)) << text;
        }
    };
    for (int power = -1074; power < 1024; power += 3) check(std::ldexp(1.0, power));
    std::mt19937_64 random(6);
    for (int i = 0; i < 500; ++i)
        if (const double size = std::fabs(std::bit_cast<double>(random())); size < Largest) check(size);
}

TEST(Decimal, AddsWhatPeopleSee) {
    const struct {
        double left, right, sum;
    } cases[] = {
        {1.9, -0.05, 1.85},
        {0.1, 0.2, 0.3},
        {1, -1, 0},
        {0, -0.05, -0.05},
        {99.99, 0.01, 100},
        {1e15, 0.5, 1000000000000000.5},
        {1e300, 1e-300, 1e300},
        {Largest, Smallest, Largest},
        {Largest, Largest, Largest},
        {-Largest, -Largest, -Largest},
        {Infinity, -Infinity, 0},
        {NoNumber, 1, 1},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.left << " and " << test.right);
        EXPECT_EQ(addDecimally(test.left, test.right), test.sum);
        EXPECT_EQ(addDecimally(test.right, test.left), test.sum);
    }
    EXPECT_FALSE(std::signbit(addDecimally(-1, 1)));
}

TEST(Decimal, StepsOfAHundredthMeetEveryHundredth) {
    double value = -5;
    for (int cents = -500; cents <= 500; ++cents) {
        ASSERT_EQ(value, cents / 100.0);
        value = addDecimally(value, 0.01);
    }
}

}  // namespace
}  // namespace kel
