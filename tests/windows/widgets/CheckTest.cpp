#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Picture.h"
#include "tests/windows/widgets/Scene.h"

/// The system's check box with a state and a picture of ours.
namespace kel::tests {

namespace {

constexpr POINT Middle{100, 10};

/// A check box "I &agree". Its clicks are written down as "click:1", with the value, its characters as "key:97".
class CheckScene final : public Scene, private CheckBoxListener {
public:
    CheckScene() : Scene(Width, Height) {
        Box_.move(whole());
        Box_.setCaption(u"I &agree");
        placeOn(host().window());
        takeLog();
    }

    CheckBox& box() { return Box_; }
    HWND window() { return GetWindow(control().handle(), GW_CHILD); }

    void enter() {
        SetFocus(window());
        settle();
        takeLog();
    }
    void key(WPARAM code) { strike(window(), code); }
    void click() { kel::tests::click(window(), Middle); }
    /// What is told when this is done.
    template <class Deed>
    std::wstring told(Deed deed) {
        takeLog();
        deed();
        settle();
        return takeLog();
    }

    std::function<void()> onClick;
    bool swallowKeys = false;

private:
    void Check1_Click() override {
        tell(L"click:" + std::to_wstring(Box_.value()));
        if (onClick) onClick();
    }
    void Check1_KeyPress(char32_t& KeyAscii) override {
        tell(L"key:" + std::to_wstring(static_cast<unsigned>(KeyAscii)));
        if (swallowKeys) KeyAscii = 0;
    }

    CheckBox Box_{control().widgets(), *this};
};

/// Ways to press a check box.
struct Press {
    const char* name;
    void (*act)(CheckScene& scene);
};
constexpr NamedDeed<CheckScene> Presses[] = {
    {"mouse", [](CheckScene& scene) { scene.click(); }},
    {"space bar", [](CheckScene& scene) { scene.key(VK_SPACE); }},
    {"character", [](CheckScene& scene) { SendMessageW(scene.window(), WM_CHAR, L' ', 1); }},
    {"other program", [](CheckScene& scene) { SendMessageW(scene.window(), BM_CLICK, 0, 0); }},
    {"mnemonic", [](CheckScene& scene) { scene.box().pressMnemonic(); }},
};

/// Ways to bar it from input.
constexpr NamedDeed<CheckScene> Bars[] = {
    {"disabled", [](CheckScene& scene) { scene.box().setEnabled(false); }},
    {"locked", [](CheckScene& scene) { scene.control().setEnabled(false); }},
    {"hidden", [](CheckScene& scene) { scene.box().setVisible(false); }},
};

constexpr DWORD Ground = 0xC0FFEE;
constexpr int CaptionLeft = 16;  ///< pixels

/// What the screen shows of it.
void copyScreen(CheckScene& scene, Picture& picture) {
    UpdateWindow(scene.window());
    HDC const context = GetDC(scene.window());
    BitBlt(picture.context(), 0, 0, Width, Height, context, 0, 0, SRCCOPY);
    ReleaseDC(scene.window(), context);
}

/// Colours of a scene's box as it looks, in its picture or on the screen, with a ground and an ink of their own.
struct Look {
    explicit Look(CheckScene& scene, bool onScreen = false) {
        Picture picture;
        if (onScreen)
            copyScreen(scene, picture);
        else
            scene.drawInto(picture.context());
        ink = picture.count(Ink, CaptionLeft, Width);
        box = picture.count(Ground, 0, CaptionLeft);
        caption = picture.count(Ground, CaptionLeft, Width);
    }
    int ink = 0;      ///< pixels of it in the caption
    int box = 0;      ///< of the ground where the box is
    int caption = 0;  ///< of the ground where the caption is
};

void color(CheckScene& scene) {
    scene.box().setForeColor(0x000000FF);
    scene.box().setBackColor(0x00EEFFC0);
    scene.box().move(twipsOf({0, 0, Width, Height}));
}

}  // namespace

TEST(check_is_the_systems_button) {
    CheckScene scene;
    EXPECT((SendMessageW(scene.window(), WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0);
    EXPECT_EQ(GetWindowLongW(scene.window(), GWL_STYLE) & BS_TYPEMASK, LONG{BS_3STATE});
    EXPECT_EQ(textOf(scene.window()), L"I &agree");
    for (const std::int32_t value : {CheckBox::Grey, CheckBox::Checked, CheckBox::Unchecked}) {
        scene.box().setValue(value);
        EXPECT_EQ(SendMessageW(scene.window(), BM_GETCHECK, 0, 0), LRESULT{value});
    }
}

TEST(check_is_toggled_by_every_kind_of_press) {
    for (const auto& press : Presses) {
        CheckScene scene;
        scene.enter();
        scene.told([&] { press.act(scene); });
        EXPECT_EQ(scene.box().value(), CheckBox::Checked);
        const std::wstring log = scene.told([&] { press.act(scene); });
        if (log != L"click:0" && log != L"key:32 click:0") fail(__FILE__, __LINE__, press.name + shown(log));
    }
}

TEST(check_that_takes_no_input_is_neither_toggled_nor_focused) {
    for (const auto& deed : Bars) {
        CheckScene scene;
        scene.enter();
        deed.act(scene);
        EXPECT(GetFocus() != scene.window());
        SetFocus(scene.host().button());
        scene.takeLog();
        for (const auto& press : Presses) {
            const std::wstring log = scene.told([&] { press.act(scene); });
            if (!log.empty()) fail(__FILE__, __LINE__, std::string(deed.name) + ", " + press.name + ": " + shown(log));
        }
        EXPECT(GetFocus() == scene.host().button());
    }
    // A locked one looks as it did: its button is none the less enabled.
    CheckScene scene;
    scene.control().setEnabled(false);
    EXPECT(IsWindowEnabled(scene.window()));
    scene.box().setEnabled(false);
    EXPECT(!IsWindowEnabled(scene.window()));
}

TEST(check_releases_what_is_swallowed) {
    CheckScene scene;
    scene.enter();
    scene.swallowKeys = true;
    EXPECT_EQ(scene.told([&] { scene.key(VK_SPACE); }), L"key:32");
    EXPECT((SendMessageW(scene.window(), BM_GETSTATE, 0, 0) & BST_PUSHED) == 0);
    EXPECT(GetCapture() == nullptr);
}

TEST(check_toggles_when_the_space_bar_goes_up) {
    CheckScene scene;
    scene.enter();
    for (int i = 0; i < 3; ++i) PostMessageW(scene.window(), WM_KEYDOWN, VK_SPACE, 1);
    settle();
    EXPECT_EQ(scene.takeLog(), L"key:32 key:32 key:32");
    EXPECT((SendMessageW(scene.window(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
    PostMessageW(scene.window(), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001U));
    settle();
    EXPECT_EQ(scene.takeLog(), L"click:1");
}

TEST(check_keeps_from_its_host_the_keys_that_act_in_it) {
    CheckScene scene;
    scene.enter();
    const auto takes = [&](WPARAM code) {
        MSG message{};
        message.hwnd = scene.window();
        message.message = WM_KEYDOWN;
        message.wParam = code;
        message.lParam = 1;
        const bool taken = scene.control().translateAccelerator(message);
        settle();
        return taken;
    };
    for (const WPARAM code : std::initializer_list<WPARAM>{VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN, VK_SPACE, VK_RETURN})
        EXPECT(takes(code));
    for (const WPARAM code : std::initializer_list<WPARAM>{VK_TAB, VK_ESCAPE, VK_F4, VK_HOME}) EXPECT(!takes(code));
    MSG enter{};
    enter.message = WM_KEYDOWN;
    enter.wParam = VK_RETURN;
    const LRESULT code = SendMessageW(scene.window(), WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter));
    EXPECT((code & (DLGC_WANTARROWS | DLGC_WANTMESSAGE)) == (DLGC_WANTARROWS | DLGC_WANTMESSAGE));
    EXPECT((SendMessageW(scene.window(), WM_GETDLGCODE, 0, 0) & DLGC_WANTTAB) == 0);
}

TEST(check_press_that_ends_elsewhere_does_not_toggle) {
    std::vector<NamedDeed<CheckScene>> ends(std::begin(Bars), std::end(Bars));
    ends.push_back({"beside it", [](CheckScene& scene) {
                        postMouse(scene.window(), WM_MOUSEMOVE, MK_LBUTTON, {-50, 10});
                    }});
    ends.push_back({"without its capture", [](CheckScene& /*scene*/) { ReleaseCapture(); }});
    for (const auto& end : ends) {
        CheckScene scene;
        scene.enter();
        postMouse(scene.window(), WM_LBUTTONDOWN, MK_LBUTTON, Middle);
        settle();
        EXPECT(GetCapture() == scene.window());
        EXPECT((SendMessageW(scene.window(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
        end.act(scene);
        settle();
        EXPECT((SendMessageW(scene.window(), BM_GETSTATE, 0, 0) & BST_PUSHED) == 0);
        postMouse(scene.window(), WM_LBUTTONUP, 0, std::string(end.name) == "beside it" ? POINT{-50, 10} : Middle);
        settle();
        EXPECT(GetCapture() == nullptr);
        if (scene.box().value() != CheckBox::Unchecked) fail(__FILE__, __LINE__, end.name);
    }
}

TEST(check_takes_what_other_programs_send_as_from_code) {
    CheckScene scene;
    EXPECT_EQ(scene.told([&] { SendMessageW(scene.window(), BM_SETCHECK, BST_CHECKED, 0); }), L"click:1");
    EXPECT_EQ(scene.told([&] { SendMessageW(scene.window(), BM_SETCHECK, 77, 0); }), L"click:2");
    EXPECT_EQ(scene.told([&] { SetWindowTextW(scene.window(), L"&Other"); }), L"mnemonic");
    EXPECT(scene.box().caption() == u"&Other");
    EXPECT_EQ(textOf(scene.window()), L"&Other");
}

TEST(check_may_go_in_its_own_click) {
    const NamedDeed<CheckScene> deeds[] = {
        {"parent", [](CheckScene& scene) { DestroyWindow(scene.host().window()); }},
        {"place", [](CheckScene& scene) { scene.control().abandon(); }},
        {"input", [](CheckScene& scene) { scene.control().setEnabled(false); }},
    };
    for (const auto& deed : deeds) {
        for (const auto& press : Presses) {
            CheckScene scene;
            scene.enter();
            HWND const window = scene.window();
            scene.onClick = [&] { deed.act(scene); };
            const std::wstring log = scene.told([&] { press.act(scene); });
            if (log.find(L"click:1") == log.npos) fail(__FILE__, __LINE__, std::string(deed.name) + press.name);
            EXPECT(GetCapture() == nullptr);
            EXPECT(GetFocus() != window || deed.act == deeds[1].act);
        }
    }
}

TEST(check_comes_back_with_its_window) {
    CheckScene scene;
    scene.box().setValue(CheckBox::Checked);
    scene.box().setEnabled(false);
    scene.changeHost();
    EXPECT_EQ(textOf(scene.window()), L"I &agree");
    EXPECT_EQ(SendMessageW(scene.window(), BM_GETCHECK, 0, 0), LRESULT{CheckBox::Checked});
    EXPECT(!IsWindowEnabled(scene.window()));
    scene.box().setEnabled(true);
    scene.enter();
    scene.click();
    EXPECT_EQ(scene.takeLog(), L"click:0");
}

TEST(check_picture_shows_state_and_colours) {
    CheckScene scene;
    color(scene);
    const Look unchecked(scene);
    EXPECT(unchecked.ink > 10);
    EXPECT(unchecked.caption > 1000);
    EXPECT(unchecked.box > 40);
    // The locked box looks as it did, the disabled one is grey.
    scene.control().setEnabled(false);
    EXPECT_EQ(Look(scene).ink, unchecked.ink);
    scene.control().setEnabled(true);
    scene.box().setEnabled(false);
    EXPECT_EQ(Look(scene).ink, 0);
    scene.box().setEnabled(true);
    scene.box().setFontBold(true);
    EXPECT(Look(scene).ink > unchecked.ink);
    scene.box().setFontBold(false);
    // The frame of the focus is about the caption, or about everything where there is none; paper has no focus.
    scene.enter();
    EXPECT_EQ(Look(scene).caption, unchecked.caption);
    EXPECT(Look(scene, true).caption < unchecked.caption - 40);
    scene.box().setCaption(u"");
    const int framed = Look(scene, true).caption;
    SetFocus(scene.host().button());
    settle();
    EXPECT(framed < Look(scene, true).caption - 100);
}

TEST(check_states_look_different_on_the_screen) {
    CheckScene scene;
    const auto pixels = [&] {
        Picture picture;
        copyScreen(scene, picture);
        return picture.all(CaptionLeft, Height);
    };
    const auto unchecked = pixels();
    scene.box().setValue(CheckBox::Checked);
    const auto checked = pixels();
    scene.box().setValue(CheckBox::Grey);
    const auto grey = pixels();
    EXPECT(unchecked != checked);
    EXPECT(checked != grey);
    EXPECT(grey != unchecked);
}

}  // namespace kel::tests
