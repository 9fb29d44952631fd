#include <windows.h>
// The common controls stand on the system's header.
#include <commctrl.h>

#include <string>

#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Picture.h"
#include "tests/windows/widgets/Stage.h"

/// Windows that come and go, and pictures without any.
namespace kel::tests {

namespace {

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

TEST(a_destroyed_parent_leaves_the_widgets_and_the_window_comes_back) {
    Stage stage;
    stage.box().setText(u"kept");
    stage.box().setEnabled(false);
    EXPECT_EQ(shownLine(stage.edit()), L"kept");
    stage.loseHost();
    stage.takeLog();
    stage.box().setText(u"changed meanwhile");
    EXPECT(IsWindow(stage.control().handle()));
    stage.changeHost();
    EXPECT(GetParent(stage.control().handle()) == stage.host().window());
    EXPECT_EQ(shownLine(stage.edit()), L"changed meanwhile");
    EXPECT(!IsWindowEnabled(stage.edit()));
    stage.box().setEnabled(true);
    SetFocus(stage.edit());
    EXPECT_EQ(stage.takeLog(), L"change enter got");
    stage.loseHost();
    EXPECT_EQ(stage.takeLog(), L"lost exit");
}

TEST(tooltips_outlive_the_window_that_the_control_was_in) {
    Stage stage;
    stage.box().setToolTip(u"tip");
    EXPECT_EQ(countToolTips(), 1);
    const HostWindow other;
    stage.placeOn(other.window());
    stage.loseHost();
    EXPECT_EQ(countToolTips(), 1);
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
        stage.drawInto(picture.context());
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
    stage.loseHost();
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
        stage.drawInto(picture.context());
        return picture.count(0, 284, 300);
    };
    const int hidden = arrows();
    stage.spinner().setVisible(true);
    const int shown = arrows();
    EXPECT(shown > hidden);
    stage.control().setEnabled(false);
    EXPECT(arrows() < shown);
}

TEST(nothing_is_seen_outside_the_clip) {
    Stage stage;
    const RECT bounds{10, 10, 210, 40};
    stage.control().place(bounds, {50, 0, 150, 30});
    RECT seen{};
    EXPECT(GetWindowRgnBox(stage.control().handle(), &seen) != ERROR);
    EXPECT_EQ(seen.left, 40L);
    EXPECT_EQ(seen.right, 140L);
    EXPECT_EQ(seen.bottom, 20L);
    stage.control().place(bounds, {0, 0, 500, 500});
    EXPECT(GetWindowRgnBox(stage.control().handle(), &seen) == ERROR);
}

}  // namespace kel::tests
