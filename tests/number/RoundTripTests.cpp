#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

#include "controls/number/NumberText.h"
#include "values/Decimal.h"
#include "values/NumberFormat.h"
#include "values/NumberReader.h"
#include "values/Text.h"

namespace kel {
namespace {

constexpr std::size_t CaseCount = 20000;

class Numbers {
public:
    /// Now any double, now an amount as people enter it, now a number of few digits and any size.
    double next() {
        switch (random_() % 3) {
            case 0: return toFinite(std::bit_cast<double>(random_()));
            case 1: return static_cast<double>(whole(2'000'000'000)) / 1000;
            default:
                return static_cast<double>(whole(100'000)) * std::pow(10, static_cast<double>(random_() % 36) - 18);
        }
    }

    template <class Count>
    std::size_t below(Count count) {
        return random_() % count;
    }

private:
    std::int64_t whole(std::uint64_t range) {
        return static_cast<std::int64_t>(random_() % range) - static_cast<std::int64_t>(range / 2);
    }

    std::mt19937_64 random_{20130315};
};

void expectReadsBack(const std::u16string& shown, double number, std::int16_t decimals,
                     const RegionalSettings& region) {
    double read = 0;
    ASSERT_TRUE(shown.empty() || readNumber(shown, region, read) == NumberReading::Number) << toUtf8(shown);
    ASSERT_EQ(read, number) << toUtf8(shown);
    ASSERT_EQ(roundDecimally(read, decimals), number) << toUtf8(shown);
}

/// An amount that a field shows is what the field takes it for when it is left without a change.
TEST(RoundTrip, WhatIsShownReadsBackInEveryRegion) {
    Numbers numbers;
    const auto names = regionNames();
    for (std::size_t i = 0; i < CaseCount; ++i) {
        const RegionalSettings& region = *findRegion(names[i % names.size()]);
        const auto decimals = static_cast<std::int16_t>(numbers.below(17U));
        const bool group = numbers.below(2U) == 0;
        const double entered = numbers.next();
        const double number = roundDecimally(entered, decimals);
        SCOPED_TRACE(testing::Message() << toUtf8(region.Name) << " " << decimals << " of " << entered);
        for (const bool parentheses : {true, false}) {
            const NumberFormat format{.decimals = decimals, .group = group, .parentheses = parentheses};
            expectReadsBack(formatNumber(entered, format, region), number, decimals, region);
        }
        expectReadsBack(editText(entered, decimals, region), number, decimals, region);
        expectReadsBack(generalNumber(number, region), number, decimals, region);
        if (HasFatalFailure()) return;
    }
}

/// Half of a last place is the most that rounding moves a number, and a rounded number stays.
TEST(RoundTrip, RoundingMovesByHalfAPlaceAtMost) {
    Numbers numbers;
    for (std::size_t i = 0; i < CaseCount; ++i) {
        const double number = std::fmod(numbers.next(), 1e6);
        const auto places = static_cast<std::int32_t>(numbers.below(9U));
        const double result = roundDecimally(number, places);
        ASSERT_EQ(roundDecimally(result, places), result);
        const double most = 0.5 * std::pow(10, -places) + std::ldexp(std::fabs(number), -52);
        ASSERT_LE(std::fabs(result - number), most) << number;
    }
}

}  // namespace
}  // namespace kel
