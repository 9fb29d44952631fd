#include <windows.h>
// The common controls stand on the system's header.
#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Picture.h"
#include "tests/windows/widgets/Stage.h"

/// Windows that come and go, and pictures without any.
namespace kel::tests {

namespace {

BOOL CALLBACK countChild(HWND /*window*/, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK countTop(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    EnumChildWindows(window, &countChild, count);
    return TRUE;
}

int countWindows() {
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), &countTop, reinterpret_cast<LPARAM>(&count));
    return count;
}

BOOL CALLBACK countTools(HWND window, LPARAM count) {
    wchar_t name[32]{};
    GetClassNameW(window, name, 32);
    if (std::wstring(name) == TOOLTIPS_CLASSW)
        *reinterpret_cast<LRESULT*>(count) += SendMessageW(window, TTM_GETTOOLCOUNT, 0, 0);
    return TRUE;
}

/// How many windows have a tooltip.
LRESULT countToolTips() {
    LRESULT count = 0;
    EnumThreadWindows(GetCurrentThreadId(), &countTools, reinterpret_cast<LPARAM>(&count));
    return count;
}

constexpr DWORD Green = 0x00FF00;
constexpr DWORD Red = 0xFF0000;

}  // namespace

TEST(widgets_work_without_any_window) {
    Stage stage;
    stage.label().setCaption(u"&Name");
    stage.box().setText(u"text");
    stage.box().setSelStart(2);
    stage.box().setMaxLength(3);
    EXPECT_EQ(drawn(stage.box()), L"te|xt");
    EXPECT_EQ(stage.takeLog(), L"change");
    EXPECT_EQ(static_cast<int>(stage.window().mnemonic()), int{'N'});
    stage.box().setFocus();
    EXPECT_EQ(stage.takeLog(), L"");
}

TEST(a_destroyed_parent_leaves_the_widgets_and_the_window_comes_back) {
    Stage stage;
    {
        HostWindow host;
        stage.placeOn(host.window());
        stage.box().setText(u"kept");
        stage.box().setEnabled(false);
        EXPECT_EQ(shownLine(stage.edit()), L"kept");
    }
    stage.takeLog();
    stage.box().setText(u"changed meanwhile");
    HostWindow host;
    EXPECT(IsWindow(stage.window().handle()));
    stage.placeOn(host.window());
    EXPECT(GetParent(stage.window().handle()) == host.window());
    EXPECT_EQ(shownLine(stage.edit()), L"changed meanwhile");
    EXPECT(!IsWindowEnabled(stage.edit()));
    stage.box().setEnabled(true);
    SetFocus(stage.edit());
    EXPECT_EQ(stage.takeLog(), L"change enter got");
}

TEST(a_parent_destroyed_under_the_focus_has_the_control_left) {
    Stage stage;
    {
        HostWindow host;
        stage.placeOn(host.window());
        SetFocus(stage.edit());
        stage.takeLog();
    }
    EXPECT_EQ(stage.takeLog(), L"lost exit");
}

TEST(moving_to_another_parent_keeps_text_and_window) {
    HostWindow one;
    HostWindow two;
    Stage stage;
    stage.placeOn(one.window());
    stage.box().setText(u"text");
    HWND const before = stage.window().handle();
    stage.window().setParent(nullptr);
    stage.placeOn(two.window());
    EXPECT(stage.window().handle() == before);
    EXPECT(GetParent(before) == two.window());
    EXPECT_EQ(shownLine(stage.edit()), L"text");
}

TEST(tooltips_outlive_the_window_that_the_control_was_in) {
    Stage stage;
    stage.box().setToolTip(u"tip");
    EXPECT(stage.window().handle() != nullptr);
    EXPECT_EQ(countToolTips(), 1);
    auto one = std::make_unique<HostWindow>();
    stage.placeOn(one->window());
    EXPECT_EQ(countToolTips(), 1);
    const HostWindow two;
    stage.placeOn(two.window());
    one.reset();
    EXPECT_EQ(countToolTips(), 1);
}

TEST(two_hundred_controls_come_and_go_without_a_trace) {
    HostWindow host;
    const auto cycle = [&host] {
        Stage stage;
        stage.label().setCaption(u"caption");
        stage.box().setFont(u"Tahoma", 9);
        stage.box().setToolTip(u"tip");
        stage.box().setBackColor(0x00C0FFC0);
        stage.spinner().setVisible(true);
        stage.placeOn(host.window());
        SetFocus(stage.edit());
        UpdateWindow(stage.edit());
    };
    cycle();
    const int windows = countWindows();
    const DWORD drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 200; ++i) cycle();
    EXPECT_EQ(countWindows(), windows);
    // The system keeps some of its own.
    EXPECT(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) <= drawing + 20);
}

TEST(the_picture_is_the_same_with_and_without_a_window) {
    Stage stage;
    stage.label().setCaption(u"WWWW");
    stage.label().setForeColor(0x000000FF);
    stage.box().setText(u"WWWW");
    stage.box().setBackColor(0x0000FF00);
    stage.box().setForeColor(0x000000FF);
    int caption = 0;
    int field = 0;
    const auto look = [&] {
        Picture picture;
        stage.window().draw(picture.context(), {0, 0, Picture::Width, Picture::Height});
        EXPECT(picture.count(Green, 0, 100) == 0);
        EXPECT(picture.count(Green, 100, 300) > 1000);
        caption = picture.count(Red, 0, 100);
        field = picture.count(Red, 100, 300);
    };
    look();
    EXPECT(caption > 10);
    EXPECT(field > 10);
    const int captionBefore = caption;
    const int fieldBefore = field;
    HostWindow host;
    stage.placeOn(host.window());
    look();
    EXPECT_EQ(caption, captionBefore);
    EXPECT_EQ(field, fieldBefore);

    stage.box().setPasswordChar(u'.');
    look();
    EXPECT(field < fieldBefore);
}

TEST(the_picture_has_the_spinner_that_shows) {
    Stage stage;
    const auto arrows = [&stage] {
        Picture picture;
        stage.window().draw(picture.context(), {0, 0, Picture::Width, Picture::Height});
        return picture.count(0, 284, 300);
    };
    const int hidden = arrows();
    stage.spinner().setVisible(true);
    const int shown = arrows();
    EXPECT(shown > hidden);
    stage.window().setEnabled(false);
    EXPECT(arrows() < shown);
}

TEST(nothing_is_seen_outside_the_clip) {
    HostWindow host;
    Stage stage;
    stage.placeOn(host.window());
    const RECT bounds{10, 10, 210, 40};
    stage.window().place(bounds, {50, 0, 150, 30});
    RECT seen{};
    EXPECT(GetWindowRgnBox(stage.window().handle(), &seen) != ERROR);
    EXPECT_EQ(seen.left, 40L);
    EXPECT_EQ(seen.right, 140L);
    EXPECT_EQ(seen.bottom, 20L);
    stage.window().place(bounds, {0, 0, 500, 500});
    EXPECT(GetWindowRgnBox(stage.window().handle(), &seen) == ERROR);
}

}  // namespace kel::tests
