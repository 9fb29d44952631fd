#include <windows.h>

#include <commctrl.h>

#include <string>

#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Picture.h"
#include "tests/windows/widgets/Scene.h"

/// A bar and a text on the system's progress bar.
namespace kel::tests {

namespace {

class PictureScene final : public Scene {
public:
    PictureScene() : Scene(Width, Height) {
        box().move(whole());
        box().setForeColor(0x000000FF);
        placeOn(host().window());
        UpdateWindow(window());
    }

    PictureBox& box() { return Box_; }
    HWND window() { return GetWindow(control().handle(), GW_CHILD); }

    /// A bar of so many pixels with a text in the middle.
    BarPicture bar(int pixels, std::u16string text) {
        const Rect surface = box().bounds();
        const Size extent = box().extentOf(text);
        const std::int32_t left = (surface.width - extent.width) / 2;
        const std::int32_t top = (surface.height - extent.height) / 2;
        return {std::move(text), left, top, machine().scale().twips(pixels), pixels * 100 / Width};
    }

    /// Pixels of the ink between two columns, as they are on the screen at this moment.
    int inkOnScreen(int left, int right) { return onScreen(Ink, left, right); }
    int groundOnScreen(int left, int right) {
        const COLORREF ground = GetSysColor(COLOR_BTNFACE);
        return onScreen(RGB(GetBValue(ground), GetGValue(ground), GetRValue(ground)), left, right);
    }

private:
    int onScreen(DWORD color, int left, int right) {
        Picture picture;
        HDC const context = GetDC(window());
        BitBlt(picture.context(), 0, 0, Width, Height, context, 0, 0, SRCCOPY);
        ReleaseDC(window(), context);
        return picture.count(color, left, right);
    }

    PictureBox Box_{control().widgets()};
};

LRESULT position(HWND window) { return SendMessageW(window, PBM_GETPOS, 0, 0); }

}  // namespace

TEST(picture_is_seen_before_draw_returns) {
    PictureScene scene;
    EXPECT_EQ(scene.inkOnScreen(0, Width), 0);
    scene.box().draw(scene.bar(50, u""));
    EXPECT_EQ(scene.inkOnScreen(0, Width), 50 * Height);
    EXPECT_EQ(scene.inkOnScreen(0, 50), 50 * Height);
    scene.box().draw(scene.bar(Width, u""));
    EXPECT_EQ(scene.inkOnScreen(0, Width), Width * Height);
    scene.box().clear();
    EXPECT_EQ(scene.inkOnScreen(0, Width), 0);
}

TEST(picture_text_is_read_over_bar_and_ground) {
    constexpr int Half = Width / 2;
    PictureScene scene;
    scene.box().draw(scene.bar(0, u"HHHHHH"));
    const int onGround = scene.groundOnScreen(0, Half);
    const int behind = scene.groundOnScreen(Half, Width);
    EXPECT(onGround < Half * Height - 20);
    EXPECT(behind < Half * Height - 20);
    scene.box().draw(scene.bar(Half, u"HHHHHH"));
    EXPECT_EQ(scene.groundOnScreen(Half, Width), behind);
    EXPECT(scene.inkOnScreen(0, Half) < Half * Height - 20);
    EXPECT(scene.groundOnScreen(0, Half) > 0);
}

TEST(picture_is_the_same_without_a_window) {
    PictureScene scene;
    const BarPicture shown = scene.bar(70, u"35% (2 minutes remaining)");
    scene.box().draw(shown);
    Picture picture;
    scene.drawInto(picture.context());
    EXPECT_EQ(picture.count(Ink, 0, Width), scene.inkOnScreen(0, Width));
    EXPECT(scene.box().picture().text == shown.text);

    scene.changeHost();
    UpdateWindow(scene.window());
    EXPECT_EQ(picture.count(Ink, 0, Width), scene.inkOnScreen(0, Width));
}

TEST(picture_is_a_progress_bar_for_those_who_cannot_see_it) {
    PictureScene scene;
    EXPECT_EQ(position(scene.window()), LRESULT{0});
    PBRANGE range{};
    EXPECT_EQ(SendMessageW(scene.window(), PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range)), LRESULT{0});
    EXPECT_EQ(range.iHigh, 100);
    scene.box().draw(scene.bar(Width * 2 / 5, u"40% (3 minutes remaining)"));
    EXPECT_EQ(position(scene.window()), LRESULT{40});
    EXPECT_EQ(textOf(scene.window()), L"40% (3 minutes remaining)");
    scene.box().draw(scene.bar(Width, u"100%"));
    EXPECT_EQ(position(scene.window()), LRESULT{100});
    scene.box().clear();
    EXPECT_EQ(position(scene.window()), LRESULT{0});
}

TEST(picture_has_no_border_and_takes_no_focus) {
    PictureScene scene;
    RECT client{};
    GetClientRect(scene.window(), &client);
    EXPECT_EQ(client.right, LONG{Width});
    EXPECT_EQ(client.bottom, LONG{Height});
    SetFocus(scene.host().button());
    click(scene.window(), {50, 10});
    scene.control().setFocus();
    settle();
    EXPECT(GetFocus() == scene.host().button());
    EXPECT_EQ(scene.takeLog(), L"");
    EXPECT((GetWindowLongW(scene.window(), GWL_STYLE) & WS_TABSTOP) == 0);
    scene.box().setEnabled(false);
    EXPECT(!IsWindowEnabled(scene.window()));
}

}  // namespace kel::tests
