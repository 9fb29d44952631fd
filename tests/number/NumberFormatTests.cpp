#include "values/NumberFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "values/Text.h"

namespace kel {
namespace {

std::string shown(double number, const NumberFormat& format, const RegionalSettings& region) {
    return toUtf8(formatNumber(number, format, region));
}

TEST(NumberFormat, FollowsItsSettings) {
    const NumberFormat plain{};
    const NumberFormat display{.group = true, .parentheses = true};
    const NumberFormat editing{.leadingZero = false, .trailingZeros = false, .typedSymbols = true};
    const struct {
        double number;
        NumberFormat format;
        std::string_view text;
    } cases[] = {
        {-1234.5, plain, "-1234.50"},
        {-1234.5, display, "(1,234.50)"},
        {-1234.5, editing, "-1234.5"},
        {0.5, plain, "0.50"},
        {0.5, editing, ".5"},
        {0, display, "0.00"},
        {0, editing, ""},
        {-0.004, display, "0.00"},
        {-0.005, display, "(0.01)"},
        {0, {.decimals = 0}, "0"},
        {2.5, {.decimals = 0}, "3"},
        {999.995, display, "1,000.00"},
        {1234567, {.decimals = 0, .group = true}, "1,234,567"},
        {0.1, {.decimals = 16}, "0.1000000000000000"},
        {12.6, {.decimals = -1}, "13"},
        {1e21, {.decimals = 1, .group = true}, "1,000,000,000,000,000,000,000.0"},
        {std::nan(""), display, "0.00"},
    };
    for (const auto& test : cases) EXPECT_EQ(shown(test.number, test.format, defaultRegion()), test.text);
    const std::string huge = shown(-std::numeric_limits<double>::infinity(), display, defaultRegion());
    EXPECT_EQ(huge.size(), 309U + 102 + 3 + 2) << "an infinity is shown as the largest number";
}

TEST(NumberFormat, WritesAsTheRegionDoes) {
    const NumberFormat grouped{.group = true};
    const struct {
        std::u16string_view region;
        double number;
        NumberFormat format;
        std::string_view text;
    } cases[] = {
        {u"de-DE", 1234567.891, grouped, "1.234.567,89"},
        {u"fr-FR", 1234567.891, grouped, "1\u202F234\u202F567,89"},
        {u"hi-IN", 123456789, grouped, "12,34,56,789.00"},
        {u"es-ES", 1234, grouped, "1234,00"},
        {u"es-ES", 9999.999, grouped, "10.000,00"},
        {u"sv-SE", -1234.5, grouped, "\u22121\u00A0234,50"},
        {u"sv-SE", -1234.5, {.typedSymbols = true}, "-1234,50"},
        {u"ar-EG", 1234.5, {.typedSymbols = true}, "1234٫50"},
        {u"de-CH", -1234.5, {.group = true, .parentheses = true}, "(1’234.50)"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(shown(test.number, test.format, *findRegion(test.region)), test.text) << toUtf8(test.region);
}

TEST(NumberFormat, TakesSettingsThatOnlyAUserWouldMake) {
    RegionalSettings region;
    region.GroupSeparator = u"::";
    region.SecondaryGroup = 0;
    EXPECT_EQ(shown(1234567, {.group = true}, region), "1234::567.00");
    region.PrimaryGroup = 0;
    EXPECT_EQ(shown(1234567, {.group = true}, region), "1234567.00");
    region.PrimaryGroup = 3;
    region.GroupSeparator = region.DecimalSeparator;
    EXPECT_EQ(shown(1234567, {.group = true}, region), "1234567.00") << "nobody could read it back";
    region.DecimalSeparator.clear();
    region.ZeroDigit = U'\U0001E950';
    EXPECT_EQ(shown(10.5, {.decimals = 1}, region), "\U0001E951\U0001E950.\U0001E955");
    region.ZeroDigit = 0xFFFA;  // its ten digits run on into the next plane
    EXPECT_EQ(shown(10.9, {.decimals = 1}, region), "\uFFFB\uFFFA.\U00010003");
    for (const char32_t zero : {U'\uFFFA', U'\uD7FF', char32_t{0xDC00}, char32_t{0x10FFFF}, char32_t{0xFFFFFFFF}})
        EXPECT_EQ(zeroOfTenDigits(zero), U'0');
    for (const char32_t zero : {U'\u0660', U'\U0001E950'}) EXPECT_EQ(zeroOfTenDigits(zero), zero);
}

}  // namespace
}  // namespace kel
