#include "controls/progress/KelProgressBar.h"

#include <gtest/gtest.h>

#include "tests/check/OneControl.h"
#include "tests/Heap.h"
#include "values/Text.h"

namespace kel::test {
namespace {

class Progress : public testing::Test {
protected:
    OneControl Form{KelProgressBarModel, {4500, 300}};
    KelProgressBar& It = Form.as<KelProgressBar>();
    PictureBox& Surface = *It.widgets().picture;

    /// Whether putting the value draws.
    bool draws(std::int32_t value) {
        It.Clear();
        It.put_Value(value);
        return !Surface.picture().text.empty();
    }
    std::string text() { return toUtf8(Surface.picture().text); }
};

TEST_F(Progress, TheTextStandsInTheMiddleAndMayOverhang) {
    It.put_ShowTime(false);
    It.put_Value(50);
    const BarPicture& picture = Surface.picture();
    EXPECT_EQ(picture.textLeft, (4500 - Surface.extentOf(u"50%").width) / 2);
    EXPECT_EQ(picture.textTop, (300 - Surface.extentOf(u"50%").height) / 2);
    Form.placed().setBounds({0, 0, 101, 101});
    ASSERT_GT(Surface.extentOf(u"50%").width, 101);
    EXPECT_EQ(picture.textLeft, -((Surface.extentOf(u"50%").width - 101) / 2)) << "cut towards the edge";
    EXPECT_EQ(picture.textTop, -((Surface.extentOf(u"50%").height - 101) / 2));
}

TEST_F(Progress, WhatWasPutBeforeItHadASizeOrWasShownIsSeen) {
    OneControl form(KelProgressBarModel, {0, 300});
    auto& bar = form.as<KelProgressBar>();
    const PictureBox& surface = *bar.widgets().picture;
    for (std::int32_t value = 1; value <= 25; ++value) bar.put_Value(value);
    form.placed().setBounds({0, 0, 4500, 300});
    EXPECT_EQ(toUtf8(surface.picture().text), "25%");
    EXPECT_EQ(surface.picture().barWidth, 1125);
    const std::int32_t narrow = surface.picture().textLeft;
    bar.widgets().picture->setFontBold(true);
    bar.Show();
    EXPECT_EQ(surface.picture().textLeft, (4500 - surface.extentOf(u"25%").width) / 2) << "and not " << narrow;
}

TEST_F(Progress, TimeIsComparedInSinglePrecision) {
    // In the evening a single has steps of 1/128 of a second.
    Form.System.Clock = 80000;
    It.Start();
    EXPECT_TRUE(draws(50));
    Form.System.Clock = 80010.003;
    EXPECT_FALSE(draws(50));
    Form.System.Clock = 80010.005;
    EXPECT_TRUE(draws(50));
    EXPECT_EQ(text(), "50% (10 seconds remaining)");

    // From 65,536 on the steps are twice as long: the moment of the next drawing falls between two, and on the later.
    Form.System.Clock = 65530.01171875;
    It.Start();
    EXPECT_TRUE(draws(60));
    Form.System.Clock = 65540.015625;
    EXPECT_FALSE(draws(60));
}

TEST_F(Progress, TheClockIsLookedAtOnlyWhenTheTimeIsShown) {
    It.put_ShowTime(false);
    for (std::int32_t value = 1; value <= 100; ++value) EXPECT_TRUE(draws(value));
    EXPECT_EQ(Form.System.Asked, 0);
    It.Start();
    EXPECT_EQ(Form.System.Asked, 1);
    It.put_ShowTime(true);
    It.put_Value(2);
    It.put_Value(2);
    EXPECT_EQ(Form.System.Asked, 3);
}

TEST_F(Progress, ALongJobCostsNothingWhileTheBarStands) {
    It.put_Max(1'000'000'000);
    It.Start();
    It.put_Value(1);
    const HeapUse heap;
    for (std::int32_t value = 1; value <= 100'000; ++value) It.put_Value(value);
    EXPECT_EQ(heap.allocations(), 0U);
    EXPECT_EQ(Surface.picture().barWidth, 0);
    EXPECT_EQ(It.get_Value(), 100'000);
}

TEST_F(Progress, ColorEnabledAndTooltipReachTheSurface) {
    EXPECT_EQ(Surface.foreColor(), colors::SystemHighlight) << "the bar would be as black as its text";
    It.put_Enabled(false);
    EXPECT_FALSE(It.get_Enabled());
    EXPECT_FALSE(Surface.enabled());
    EXPECT_EQ(Form.told(), Lines{"Enabled"});
    Form.placed().setToolTipText(u"of the form");
    It.Show();
    EXPECT_EQ(Surface.toolTip(), u"of the form");
}

}  // namespace
}  // namespace kel::test
