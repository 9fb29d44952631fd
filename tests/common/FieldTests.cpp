#include <gtest/gtest.h>

#include "common/FieldLayout.h"
#include "common/FieldState.h"
#include "tests/runtime/RegionalServices.h"

namespace kel {
namespace {

constexpr LayoutRule Text{.fixedHeight = false, .widenAlways = false};
constexpr LayoutRule MultiLine{.fixedHeight = false, .widenAlways = false, .captionFillsHeight = true};
constexpr LayoutRule Combo{};
constexpr LayoutRule Spinner{.spinnerWidth = 240};

struct LayoutCase {
    const char* what;
    LayoutRule rule;
    Size given;
    std::int32_t caption;
    Size control;
    std::int32_t captionWidth;
    std::int32_t captionHeight;
    Rect field;
};

const LayoutCase LayoutCases[] = {
    {"ordinary", Text, {4000, 300}, 1200, {4000, 300}, 1200, 195, {1200, 0, 2800, 300}},
    {"a low text field is raised", Text, {4000, 200}, 1200, {4000, 300}, 1200, 195, {1200, 0, 2800, 300}},
    {"several lines, caption full height", MultiLine, {4000, 900}, 1200, {4000, 900}, 1200, 900, {1200, 0, 2800, 900}},
    {"other fields have one height", Combo, {4000, 500}, 1200, {4000, 300}, 1200, 195, {1200, 0, 2800, 300}},
    {"a wider caption is cut", Text, {1000, 300}, 1200, {1000, 300}, 1000, 195, {1000, 0, 0, 300}},
    {"caption wider than a tiny control takes all", Text, {50, 300}, 80, {100, 300}, 100, 195, {100, 0, 0, 300}},
    {"a tiny combo is widened whatever its caption", Combo, {50, 300}, 20, {100, 300}, 20, 195, {20, 0, 80, 300}},
    {"the spinner has its strip", Spinner, {4000, 300}, 1200, {4000, 300}, 1200, 195, {1200, 0, 2560, 300}},
    {"the strip adds to the minimum", Spinner, {50, 300}, 0, {340, 300}, 0, 195, {0, 0, 100, 300}},
    {"the caption ends before the spinner", Spinner, {1000, 300}, 900, {1000, 300}, 760, 195, {760, 0, 0, 300}},
};

TEST(FieldLayout, FollowsTheControlsRule) {
    for (const LayoutCase& test : LayoutCases) {
        SCOPED_TRACE(test.what);
        const FieldLayout layout = layOutField(test.rule, test.given, test.caption);
        EXPECT_EQ(layout.control, test.control);
        EXPECT_EQ(layout.captionWidth, test.captionWidth);
        EXPECT_EQ(layout.captionHeight, test.captionHeight);
        EXPECT_EQ(layout.field, test.field);
        EXPECT_EQ(layout.spinner.width, test.rule.spinnerWidth);
        EXPECT_EQ(layout.spinner.left + layout.spinner.width, layout.control.width);
    }
}

SharedSettings coloursOf(std::int32_t depth) {
    RegionalServices services;
    services.Depth = depth;
    SharedSettings settings;
    adoptRuntime(settings, makeRuntime(services));
    settings.Runtime.reset();  // stands on the services
    return settings;
}

TEST(FieldState, ColoursFollowTheDisplaysDepth) {
    for (const std::int32_t depth : {16, 24, 32}) {
        const SharedSettings rich = coloursOf(depth);
        EXPECT_EQ(rich.FieldBackNormal, 0x00FFFFFFU);
        EXPECT_EQ(rich.FieldBackLocked, 0x00F0F0FFU);
        EXPECT_EQ(rich.FieldBackFocus, 0x00C0FFC0U);
        EXPECT_EQ(rich.FieldBackFocusLocked, 0x00C0C0FFU);
    }
    const SharedSettings poor = coloursOf(15);
    EXPECT_EQ(poor.FieldBackNormal, 0x80000005U);
    EXPECT_EQ(poor.FieldBackLocked, 0x80000005U);
    EXPECT_EQ(poor.FieldBackFocus, 0x0080FF80U);
    EXPECT_EQ(poor.FieldBackFocusLocked, 0x80000005U);
}

TEST(FieldState, TheColourItselfIsTheStateOfTheField) {
    const SharedSettings settings = coloursOf(24);
    const auto normal = settings.FieldBackNormal, locked = settings.FieldBackLocked;
    const auto focus = settings.FieldBackFocus, focusLocked = settings.FieldBackFocusLocked;
    const struct {
        bool barred;
        Color before;
        BackChange after;
    } cases[] = {
        {true, focus, {focusLocked, false}}, {true, normal, {locked, true}},       {true, focusLocked, {locked, true}},
        {true, 0x00123456, {locked, true}},  {false, focusLocked, {focus, false}}, {false, locked, {normal, true}},
        {false, focus, {normal, true}},      {false, 0x00123456, {normal, true}},
    };
    for (const auto& test : cases) EXPECT_EQ(backOnStateChange(settings, test.barred, test.before), test.after);
}

// With three equal colours a field that was only locked cannot be told from a focused one.
TEST(FieldState, UnlockingOnAPoorDisplayLooksFocused) {
    const SharedSettings settings = coloursOf(8);
    const BackChange change = backOnStateChange(settings, false, settings.FieldBackLocked);
    EXPECT_EQ(change, (BackChange{settings.FieldBackFocus, false}));
}

}  // namespace
}  // namespace kel
