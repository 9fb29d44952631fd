#include <windows.h>

#include <utility>

#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Stage.h"

/// Keys, mouse and focus as the system delivers them.
namespace kel::tests {

TEST(keys_are_told_in_their_order_with_their_characters) {
    Stage stage;
    stage.enter();
    strike(stage.edit(), VK_DECIMAL);
    EXPECT_EQ(stage.takeLog(), L"down:110 key:46 change");
    stage.onKeyDown = [] { settle(); };
    strike(stage.edit(), 'A');
    EXPECT_EQ(stage.takeLog(), L"down:65 key:97 change");
    stage.swallowKeys = true;
    strike(stage.edit(), 'A');
    EXPECT_EQ(stage.takeLog(), L"down:65");
}

TEST(offered_keys_are_taken_only_where_the_field_wants_them) {
    struct Row {
        WPARAM code;
        bool wanted;
    };
    const Row rows[] = {{VK_LEFT, true}, {VK_DOWN, true},    {VK_END, true},  {VK_RETURN, true}, {VK_DELETE, true},
                        {'A', true},     {VK_DECIMAL, true}, {VK_TAB, false}, {VK_F2, false},    {VK_ESCAPE, false}};
    Stage stage;
    SetFocus(stage.edit());
    for (const Row& row : rows) {
        stage.takeLog();
        MSG message{};
        message.hwnd = stage.edit();
        message.message = WM_KEYDOWN;
        message.wParam = row.code;
        message.lParam = 1;
        EXPECT_EQ(stage.control().translateAccelerator(message), row.wanted);
        EXPECT_EQ(!stage.takeLog().empty(), row.wanted);
        settle();
    }
}

TEST(the_mouse_selects_and_the_keyboard_goes_on_from_there) {
    Stage stage;
    stage.box().setText(u"one two three");
    const auto placeOf = [&stage](WPARAM position) {
        const LRESULT place = SendMessageW(stage.edit(), EM_POSFROMCHAR, position, 0);
        return POINT{static_cast<short>(LOWORD(place)), 5};
    };
    stage.takeLog();
    drag(stage.edit(), placeOf(8), placeOf(8));
    EXPECT_EQ(stage.takeLog(), L"enter got press:1 click");
    EXPECT_EQ(drawn(stage.box()), L"one two |three");
    drag(stage.edit(), placeOf(4), placeOf(7));
    EXPECT_EQ(drawn(stage.box()), L"one [two] three");
    strike(stage.edit(), 'X');
    EXPECT_EQ(drawn(stage.box()), L"one x| three");
    stage.takeLog();
    drag(stage.edit(), placeOf(3), {placeOf(0).x, 200});
    EXPECT_EQ(drawn(stage.box()), L"[one] x three");
    EXPECT_EQ(stage.takeLog(), L"press:1");
}

TEST(a_double_click_takes_the_word_and_a_third_one_the_line) {
    Stage stage;
    stage.box().setText(u"one two three");
    stage.enter();
    const LRESULT corner = SendMessageW(stage.edit(), EM_POSFROMCHAR, 5, 0);
    const POINT place{static_cast<short>(LOWORD(corner)), 5};
    const auto press = [&](UINT message, POINT at) {
        postMouse(stage.edit(), message, MK_LBUTTON, at);
        // A hand is not quite still.
        postMouse(stage.edit(), WM_MOUSEMOVE, MK_LBUTTON, {at.x + 1, at.y});
        postMouse(stage.edit(), WM_LBUTTONUP, 0, at);
        settle();
        return drawn(stage.box());
    };
    EXPECT_EQ(press(WM_LBUTTONDOWN, place), L"one t|wo three");
    EXPECT_EQ(stage.takeLog(), L"press:1 click");
    EXPECT_EQ(press(WM_LBUTTONDBLCLK, place), L"one [two] three");
    EXPECT_EQ(stage.takeLog(), L"press:1");
    EXPECT_EQ(press(WM_LBUTTONDOWN, place), L"[one two three]");
    EXPECT_EQ(stage.takeLog(), L"press:1 click");
    // Elsewhere, or later, it is the first of others.
    press(WM_LBUTTONDBLCLK, place);
    EXPECT_EQ(press(WM_LBUTTONDOWN, {place.x + 40, place.y}).find(L'['), std::wstring::npos);
    press(WM_LBUTTONDBLCLK, place);
    settleFor(GetDoubleClickTime() + 50);
    EXPECT_EQ(press(WM_LBUTTONDOWN, place), L"one t|wo three");
}

namespace {

int WheelsSeen = 0;
WNDPROC HostProcedure = nullptr;

LRESULT CALLBACK countWheels(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (message == WM_MOUSEWHEEL) ++WheelsSeen;
    return CallWindowProcW(HostProcedure, window, message, wide, data);
}

}  // namespace

TEST(the_wheel_counts_notches_in_the_focus_and_scrolls_the_host_otherwise) {
    Stage stage;
    HostProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(stage.host().window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&countWheels)));
    WheelsSeen = 0;
    const auto turn = [&stage](short by) {
        SendMessageW(stage.edit(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(by)), 0);
    };
    turn(120);
    EXPECT_EQ(WheelsSeen, 1);
    EXPECT_EQ(stage.takeLog(), L"");
    stage.enter();
    for (const int by : {-240, 60, 60}) turn(static_cast<short>(by));
    EXPECT_EQ(stage.takeLog(), L"wheel:-2 wheel:1");
    EXPECT_EQ(WheelsSeen, 1);

    stage.usesWheel = false;
    turn(120);
    EXPECT_EQ(stage.takeLog(), L"");
    EXPECT_EQ(WheelsSeen, 2);
}

TEST(a_handler_that_moves_the_focus_on_has_the_old_control_left_first) {
    Stage one;
    Stage two;
    two.joinHostOf(one);
    one.enter();
    std::wstring atEntry;
    bool moved = false;
    one.onLost = [&] {
        if (std::exchange(moved, true)) return;
        SetFocus(two.edit());
        atEntry = one.takeLog();
    };
    SetFocus(one.host().button());
    EXPECT_EQ(atEntry, L"lost exit");
    EXPECT_EQ(two.takeLog(), L"enter got");
    EXPECT_EQ(one.takeLog(), L"");
    EXPECT(GetFocus() == two.edit());
}

TEST(another_window_in_front_is_no_change_of_focus) {
    Stage stage;
    stage.enter();
    {
        HostWindow other;
        SetFocus(other.button());
        settle();
        EXPECT_EQ(stage.takeLog(), L"");
    }
    // As a host does that knows who had the focus.
    SetActiveWindow(stage.host().window());
    SetFocus(stage.edit());
    settle();
    EXPECT_EQ(stage.takeLog(), L"");
}

TEST(coming_back_elsewhere_leaves_the_control) {
    Stage stage;
    Stage beside;
    beside.joinHostOf(stage);
    for (HWND const elsewhere : {stage.host().button(), beside.edit()}) {
        stage.enter();
        {
            HostWindow other;
            SetFocus(other.button());
            settle();
        }
        SetFocus(elsewhere);
        settle();
        EXPECT_EQ(stage.takeLog(), L"lost exit");
    }
    EXPECT_EQ(beside.takeLog(), L"enter got");
}

TEST(the_controls_own_window_hands_the_focus_to_its_field) {
    Stage stage;
    SetFocus(stage.control().handle());
    EXPECT(GetFocus() == stage.edit());
    stage.control().setEnabled(false);
    EXPECT(GetFocus() != stage.edit());
    stage.control().setFocus();
    EXPECT(GetFocus() != stage.edit());
}

}  // namespace kel::tests
