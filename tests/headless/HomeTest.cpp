#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

#include "controls/text/KelText.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"
#include "values/Text.h"

namespace kel::test {
namespace {

TEST(Home, TheContainerSizesAControlOnceForEachNewSize) {
    TestForm form;
    Placement placement;
    placement.bounds = {1, 2, 300, 400};
    PlacedControl& placed = form.place(u"a", ProbeControl::SingleLine, placement);
    Container& container = probe(placed).host().container;
    EXPECT_EQ(ProbeControl::takeLog(), "a.Initialize");
    EXPECT_FALSE(container.hasSize());
    EXPECT_EQ(placed.bounds(), (Rect{1, 2, 300, 400}));

    probe(placed).on("Resize", [&container] { container.setSize({container.size().width, 300}); });
    placed.setBounds({1, 2, 300, 400});
    EXPECT_TRUE(container.hasSize());
    EXPECT_EQ(placed.bounds(), (Rect{1, 2, 300, 300})) << "the control takes its own size";
    EXPECT_EQ(ProbeControl::takeLog(), "a.Resize a.Resize");
    placed.setBounds({5, 6, 300, 300});
    EXPECT_EQ(ProbeControl::takeLog(), "") << "moved, not sized";
    EXPECT_EQ(placed.bounds(), (Rect{5, 6, 300, 300}));

    form.place(u"b");
    ProbeControl::takeLog();
    form.window().show();
    EXPECT_EQ(ProbeControl::takeLog(), "a.Show b.Show");
}

TEST(Home, TheRunTimeObjectFollowsTheOptions) {
    const RegionalSettings* const german = findRegion(u"de-DE");
    ASSERT_NE(german, nullptr);
    TestForm form({.region = german, .colorDepth = 8, .twipsPerPixel = 12});
    const auto make = form.home().settings().makeDefaultRuntime;
    const auto runtime = make();
    EXPECT_NE(runtime, make());
    EXPECT_EQ(runtime->DecimalSeparator(), u",");
    EXPECT_EQ(runtime->ColorDepth(), 8);
    EXPECT_EQ(form.home().system().scale(), TwipScale(12));
    EXPECT_EQ(&form.home().region(), german);
    EXPECT_EQ(&probe(form.place(u"a")).host().region.get(), german) << "controls write numbers as the session does";

    TestForm plain;
    EXPECT_EQ(plain.home().settings().makeDefaultRuntime()->ColorDepth(), 24);
    EXPECT_EQ(plain.home().system().scale(), TwipScale(15));
    EXPECT_EQ(plain.home().region(), defaultRegion());
}

TEST(UnloadedFields, HaveARuntimeObjectToMoveOnAndATooltipOfTheirOwn) {
    TestForm form;
    auto& first = static_cast<KelText&>(form.place(u"first", KelTextModel).control());
    form.place(u"second", KelTextModel);
    first.widgets().field->setToolTip(u"own");
    form.window().show();
    ASSERT_EQ(form.home().settings().Runtime, nullptr);
    EXPECT_EQ(first.widgets().field->toolTip(), u"own") << "the host gives none";
    press(form.window(), "Tab Enter");
    EXPECT_EQ(form.focused(), "second");
}

TEST(Home, TheClockIsTheMachinesInLocalTime) {
    TestForm form;
    const System& system = form.home().system();
    const double day = system.today().Serial;
    ASSERT_EQ(day, std::floor(day));
    // The C library counts the same moment up from day zero, 30 December 1899, in local time.
    std::tm moment{};
    moment.tm_year = -1;
    moment.tm_mon = 11;
    moment.tm_mday = 30 + static_cast<int>(day);
    const double time = system.timer();
    moment.tm_sec = static_cast<int>(time);
    moment.tm_isdst = -1;
    EXPECT_NEAR(static_cast<double>(std::mktime(&moment)), static_cast<double>(std::time(nullptr)), 3.0);
    EXPECT_LT(std::fmod(system.timer() - time + 86400, 86400), 3.0) << "asked again at once";
}

}  // namespace
}  // namespace kel::test
