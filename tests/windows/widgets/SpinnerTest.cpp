#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/base/MessageBox.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/MessageBoxHand.h"
#include "tests/windows/widgets/Stage.h"

/// The system's up-down control under the mouse.
namespace kel::tests {

namespace {

constexpr POINT Upper{8, 5};
constexpr POINT Lower{8, 15};
constexpr DWORD Delay = 900;  ///< longer than the system waits before it repeats

std::ptrdiff_t stepsIn(const std::wstring& log) { return std::count(log.begin(), log.end(), L':'); }

/// A stage with its spinner shown and its box in the focus.
class SpinnerStage final : public Stage {
public:
    SpinnerStage() {
        spinner().setVisible(true);
        enter();
    }

    void mouse(UINT message, POINT place) {
        postMouse(spinnerWindow(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, place);
        settle();
    }
    void press(POINT place) { mouse(WM_LBUTTONDOWN, place); }
    void moveTo(POINT place) { mouse(WM_MOUSEMOVE, place); }
    void release(POINT place) { mouse(WM_LBUTTONUP, place); }

    /// Steps told since the last log was taken.
    std::ptrdiff_t steps() { return stepsIn(takeLog()); }
};

}  // namespace

TEST(spinner_is_the_systems_and_steps_without_taking_the_focus) {
    SpinnerStage scene;
    DWORD low = 99;
    DWORD high = 99;
    SendMessageW(scene.spinnerWindow(), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
                 reinterpret_cast<LPARAM>(&high));
    EXPECT_EQ(low, 0UL);
    EXPECT_EQ(high, 2UL);
    EXPECT((GetWindowLongW(scene.spinnerWindow(), GWL_STYLE) & WS_TABSTOP) == 0);
    scene.box().setText(u"12");
    scene.box().setSelLength(2);
    scene.takeLog();
    for (const POINT place : {Upper, Upper, Lower}) click(scene.spinnerWindow(), place);
    EXPECT_EQ(scene.takeLog(), L"step:2 step:2 step:0");
    EXPECT_EQ(drawn(scene.box()), L"[12]");
    EXPECT(GetFocus() == scene.edit());
    EXPECT(GetCapture() == nullptr);
}

TEST(spinner_repeats_while_its_button_is_held_and_the_pointer_is_over_it) {
    SpinnerStage scene;
    scene.press(Upper);
    EXPECT_EQ(scene.takeLog(), L"step:2");
    settleFor(Delay);
    EXPECT(scene.steps() >= 3);
    scene.moveTo({-50, 5});
    scene.steps();
    settleFor(Delay);
    EXPECT_EQ(scene.steps(), 0);
    scene.moveTo(Upper);
    settleFor(Delay);
    EXPECT(scene.steps() >= 3);
    scene.release(Upper);
    scene.steps();
    settleFor(Delay);
    EXPECT_EQ(scene.steps(), 0);
}

TEST(spinner_stops_when_its_handler_takes_it_away) {
    const NamedDeed<Stage> deeds[] = {
        {"disabled", [](Stage& stage) { stage.spinner().setEnabled(false); }},
        {"hidden", [](Stage& stage) { stage.spinner().setVisible(false); }},
        {"control disabled", [](Stage& stage) { stage.control().setEnabled(false); }},
        {"control hidden", [](Stage& stage) { stage.control().setVisible(false); }},
        {"host hidden", [](Stage& stage) { ShowWindow(stage.host().window(), SW_HIDE); }},
        {"control without its host", [](Stage& stage) { stage.control().abandon(); }},
        {"destroyed", [](Stage& stage) { stage.dropSpinner(); }},
        {"window destroyed", [](Stage& stage) { DestroyWindow(stage.host().window()); }},
        {"message box in front",
         [](Stage& /*stage*/) {
             const MessageBoxHand hand([](HWND /*box*/) { settleFor(Delay); });
             win32::showMessageBox(nullptr, u"stopped", 64, u"spinner");
             EXPECT_EQ(hand.seen(), 1);
         }},
    };
    for (const auto& deed : deeds) {
        SpinnerStage scene;
        scene.onStep = [&] { deed.act(scene); };
        HWND const window = scene.spinnerWindow();
        scene.press(Upper);
        settleFor(Delay);
        if (const std::wstring log = scene.takeLog(); stepsIn(log) != 1)
            fail(__FILE__, __LINE__, std::string(deed.name) + ": " + shown(log));
        EXPECT(GetCapture() != window);
        if (IsWindow(window) != FALSE) scene.release(Upper);
    }
}

TEST(spinner_does_not_step_again_while_its_handler_is_at_it) {
    SpinnerStage scene;
    scene.onStep = [] { settleFor(Delay); };
    scene.press(Upper);
    EXPECT_EQ(scene.steps(), 1);
    scene.release(Upper);
}

TEST(spinner_comes_back_with_its_window) {
    Stage stage;
    stage.spinner().setVisible(true);
    stage.changeHost();
    EXPECT(IsWindowVisible(stage.spinnerWindow()));
    click(stage.spinnerWindow(), Upper);
    EXPECT_EQ(stage.takeLog(), L"step:2");
}

}  // namespace kel::tests
