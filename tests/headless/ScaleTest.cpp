#include <gtest/gtest.h>

#include <cmath>

#include "host/Extent.h"

namespace kel {

namespace {

/// As a container counts what a control said of its size.
std::int32_t pixelsOf(std::int32_t himetric, int dots) {
    return static_cast<std::int32_t>(std::lround(static_cast<double>(himetric) * dots / 2540));
}

constexpr int Resolutions[] = {96, 120, 144, 168, 192, 240, 288, 384};

}  // namespace

TEST(TwipScale, IsExactWhereNoWholeNumberOfTwipsIsOnAPixel) {
    const struct {
        int dots;
        std::int32_t twips;
        std::int32_t pixel;
    } cases[] = {{96, 300, 20},  {120, 300, 25}, {144, 300, 30}, {168, 300, 35}, {192, 300, 40},    {240, 300, 50},
                 {288, 300, 60}, {384, 300, 80}, {96, 7, 0},     {96, 8, 1},     {192, 3, 0},       {192, 4, 1},
                 {144, 5, 1},    {144, -5, 0},   {144, -6, -1},  {96, -7, 0},    {192, 15000, 2000}};
    for (const auto& row : cases)
        EXPECT_EQ(TwipScale::ofDotsPerInch(row.dots).pixel(row.twips), row.pixel) << row.twips << " at " << row.dots;
    for (const int dots : Resolutions)
        for (int pixels = -50; pixels < 3000; ++pixels) {
            const TwipScale scale = TwipScale::ofDotsPerInch(dots);
            ASSERT_EQ(scale.pixel(scale.twips(pixels)), pixels) << dots;
        }
    EXPECT_EQ(TwipScale::ofDotsPerInch(96), TwipScale(15));
    EXPECT_EQ(TwipScale(1, 1000).twips(INT32_MAX), 2147484);
    EXPECT_EQ(TwipScale(1000).twips(INT32_MAX), FarthestTwips);
}

TEST(Extent, StaysPutHoweverOftenItIsShown) {
    for (const int dots : Resolutions)
        for (std::int32_t given = 500; given < 12000; given += 7) {
            const TwipScale scale = TwipScale::ofDotsPerInch(dots);
            Extent extent(Size{});
            for (int showing = 0; showing < 3; ++showing) {
                extent.given({given, 529});
                extent.setTwips(Extent::twipsOf({given, 529}));
                // In the pixels that the container counts out, and in those that the control asks for.
                for (const std::int32_t width : {pixelsOf(given, dots), extent.pixels(scale).width}) {
                    extent.setTwips(extent.twipsIn({width, pixelsOf(529, dots)}, scale));
                    ASSERT_EQ(extent.pixels(scale, {width, 0}).width, width) << given << " at " << dots;
                }
                ASSERT_EQ(extent.himetric(), (Size{given, 529})) << dots;
            }
        }
}

TEST(Extent, TakesASizeThatIsAnotherOne) {
    for (const int dots : Resolutions)
        for (std::int32_t wide = 20; wide < 2000; ++wide) {
            const TwipScale scale = TwipScale::ofDotsPerInch(dots);
            Extent extent({3600, 300});
            extent.given({6350, 529});
            extent.setTwips(extent.twipsIn({wide, scale.pixel(300)}, scale));
            ASSERT_EQ(extent.pixels(scale).width, wide) << dots;
            ASSERT_EQ(extent.himetric().height, 529) << "a side that stays keeps its last digit";
            // What it says of itself leads to the same pixels again.
            ASSERT_EQ(pixelsOf(extent.himetric().width, dots), wide) << dots;
        }
}

}  // namespace kel
