#include <windows.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/win32/widgets/Win32ComboBox.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Scene.h"

/// The system's combo box around a text of ours.
namespace kel::tests {

namespace {

ListItems fruit() {
    ListItems items;
    for (const char16_t* const item : {u"Apple", u"Apricot", u"Banana", u"Cherry", u"Fig", u"Grape", u"Kiwi", u"Lemon",
                                       u"Mango", u"Olive", u"Pear", u"Plum"})
        items.add(item);
    return items;
}

/// A combo box with twelve fruits in its list.
class ComboScene final : public Scene, public ComboBoxListener {
public:
    ComboScene() : Scene(Width, Height) {
        make();
        placeOn(host().window());
    }

    ComboBox& box() { return *Box_; }
    const win32::Win32ComboBox& view() const { return *win32::viewOf<win32::Win32ComboBox>(Box_.get()); }
    HWND combo() const { return view().wholeWindow(); }
    HWND edit() const { return view().window(); }
    HWND list() const { return view().listWindow(); }
    bool listShows() const { return IsWindowVisible(list()) != FALSE; }

    void make() {
        Box_ = std::make_unique<ComboBox>(control().widgets(), *this);
        Box_->move(whole());
        Box_->setItems(fruit());
    }
    void drop() { Box_.reset(); }

    void enter() {
        SetFocus(edit());
        settle();
        takeLog();
    }
    void key(WPARAM code) { strike(edit(), code); }
    void pressButton() { click(combo(), view().buttonCenter()); }
    void clickRow(std::int32_t item) {
        POINT row{};
        EXPECT(view().showRow(item, row));
        click(list(), row);
    }
    LRESULT highlight() const { return SendMessageW(list(), LB_GETCURSEL, 0, 0); }

private:
    void Combo1_Change() override { tell(L"change"); }
    void Combo1_Click() override { tell(L"click:" + std::to_wstring(Box_->listIndex())); }
    void Combo1_KeyDown(std::int16_t& /*KeyCode*/, Modifiers /*Shift*/) override {}
    bool Combo1_Edit(EditAction Action) override {
        if (Action == EditAction::Paste) tell(L"typed");
        return true;
    }
    void Combo1_KeyPress(char32_t& /*KeyAscii*/) override {}
    void Combo1_GotFocus() override { tell(L"got"); }
    void Combo1_LostFocus() override { tell(L"lost"); }

    std::unique_ptr<ComboBox> Box_;
};

SIZE sizeOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {area.right - area.left, area.bottom - area.top};
}

/// Of this thread, whatever else the machine is at.
double workedSeconds() {
    FILETIME made{};
    FILETIME gone{};
    FILETIME system{};
    FILETIME user{};
    GetThreadTimes(GetCurrentThread(), &made, &gone, &system, &user);
    const auto ticks = [](FILETIME time) { return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime; };
    return static_cast<double>(ticks(system) + ticks(user)) * 1e-7;
}

}  // namespace

TEST(combo_is_the_systems_and_as_high_as_it_is_told) {
    ComboScene scene;
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    EXPECT(GetComboBoxInfo(scene.combo(), &parts));
    EXPECT(parts.hwndItem == scene.edit());
    EXPECT((GetWindowLongW(scene.combo(), GWL_STYLE) & (CBS_DROPDOWN | CBS_DROPDOWNLIST)) == CBS_DROPDOWN);
    EXPECT_EQ(sizeOf(scene.combo()).cy, Height);
    scene.box().setFont(u"Tahoma", 14);
    EXPECT_EQ(sizeOf(scene.combo()).cy, Height);
    scene.box().setFont(u"Tahoma", 8.25);
    EXPECT_EQ(sizeOf(scene.combo()).cy, Height);
    EXPECT_EQ(sizeOf(scene.combo()).cx, Width);
    scene.pressButton();
    const int row = static_cast<int>(SendMessageW(scene.combo(), CB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ((sizeOf(scene.list()).cy - 1) / row, 8);
}

TEST(combo_list_leaves_text_and_selection_alone) {
    ComboScene scene;
    scene.enter();
    scene.box().setText(u"Ban");
    scene.box().setSelStart(1);
    scene.box().setSelLength(1);
    scene.takeLog();
    scene.pressButton();
    EXPECT(scene.listShows());
    EXPECT_EQ(scene.highlight(), 2);
    EXPECT_EQ(drawn(scene.box()), L"B[a]n");
    scene.pressButton();
    EXPECT(!scene.listShows());
    EXPECT(!scene.box().isDropped());
    EXPECT_EQ(drawn(scene.box()), L"B[a]n");
    EXPECT_EQ(shownLine(scene.edit()), L"Ban");
    EXPECT_EQ(scene.takeLog(), L"");
}

TEST(combo_takes_the_focus_before_it_opens_and_keeps_it) {
    ComboScene scene;
    scene.pressButton();
    EXPECT(scene.listShows());
    EXPECT(GetFocus() == scene.edit());
    EXPECT_EQ(scene.takeLog(), L"enter got");
    scene.clickRow(3);
    EXPECT_EQ(scene.takeLog(), L"click:3");
    EXPECT_EQ(drawn(scene.box()), L"|Cherry");
    EXPECT(!scene.listShows());
    EXPECT(GetFocus() == scene.edit());
    EXPECT(GetCapture() == nullptr);
    scene.pressButton();
    scene.key(VK_NEXT);
    EXPECT_EQ(scene.highlight(), 11);
    EXPECT_EQ(shownLine(scene.edit()), L"Plum");
}

TEST(combo_list_closes_for_what_happens_elsewhere) {
    const NamedDeed<ComboScene> deeds[] = {
        {"click into the edit window",
         [](ComboScene& scene) {
             click(scene.edit(), {5, 5});
         }},
        {"click outside",
         [](ComboScene& scene) {
             click(scene.list(), {-30, -60});
         }},
        {"focus elsewhere", [](ComboScene& scene) { SetFocus(scene.host().button()); }},
        {"another window in front",
         [](ComboScene& /*scene*/) {
             const HostWindow other;
             EXPECT(GetActiveWindow() == other.window());
         }},
        {"disabled", [](ComboScene& scene) { scene.box().setEnabled(false); }},
        {"hidden", [](ComboScene& scene) { scene.box().setVisible(false); }},
        {"control disabled", [](ComboScene& scene) { scene.control().setEnabled(false); }},
        {"control hidden", [](ComboScene& scene) { scene.control().setVisible(false); }},
        {"items changed", [](ComboScene& scene) { scene.box().setItems(fruit()); }},
        {"host gone", [](ComboScene& scene) { scene.changeHost(); }},
    };
    for (const auto& deed : deeds) {
        ComboScene scene;
        scene.box().setText(u"own");
        scene.pressButton();
        const bool opened = scene.listShows();
        scene.takeLog();
        deed.act(scene);
        settle();
        if (!opened || scene.listShows() || scene.box().isDropped())
            fail(__FILE__, __LINE__, std::string(deed.name) + (opened ? ": still open" : ": never opened"));
        if (GetCapture() != nullptr) fail(__FILE__, __LINE__, std::string(deed.name) + ": the mouse is held");
        if (scene.takeLog().find(L"click") != std::wstring::npos)
            fail(__FILE__, __LINE__, std::string(deed.name) + ": has picked");
    }
}

TEST(combo_wheel_scrolls_an_open_list_alone) {
    ComboScene scene;
    const auto turn = [&scene](int notches) {
        PostMessageW(scene.edit(), WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
        settle();
    };
    turn(-1);
    EXPECT_EQ(scene.takeLog(), L"");
    scene.box().setListIndex(3);
    scene.enter();
    turn(-2);
    turn(1);
    scene.pressButton();
    turn(-1);
    EXPECT_EQ(scene.takeLog(), L"");
    EXPECT(SendMessageW(scene.list(), LB_GETTOPINDEX, 0, 0) > 0);
}

TEST(combo_answers_other_programs_as_it_stands) {
    ComboScene scene;
    const auto ask = [&scene](UINT message, WPARAM wide = 0, const void* data = nullptr) {
        return SendMessageW(scene.combo(), message, wide, reinterpret_cast<LPARAM>(data));
    };
    EXPECT_EQ(ask(CB_GETCOUNT), 12);
    wchar_t text[40]{};
    EXPECT_EQ(ask(CB_GETLBTEXT, 3, text), 6);
    EXPECT_EQ(std::wstring(text), L"Cherry");
    EXPECT_EQ(ask(CB_SETCURSEL, 2), 2);
    EXPECT_EQ(drawn(scene.box()), L"|Banana");
    EXPECT_EQ(textOf(scene.combo()), L"Banana");
    EXPECT_EQ(ask(CB_SELECTSTRING, static_cast<WPARAM>(-1), L"ol"), 9);
    EXPECT_EQ(ask(CB_GETCURSEL), 9);
    EXPECT_EQ(scene.takeLog(), L"");
    SetWindowTextW(scene.combo(), L"Quince");
    EXPECT_EQ(scene.takeLog(), L"typed change");
    EXPECT_EQ(ask(CB_GETCURSEL), CB_ERR);
    ask(CB_SETEDITSEL, 0, reinterpret_cast<const void*>(MAKELPARAM(1, -1)));
    EXPECT_EQ(drawn(scene.box()), L"Q[uince]");
    EXPECT_EQ(LOWORD(ask(CB_GETEDITSEL)), 1);
    ask(CB_LIMITTEXT, 7);
    EXPECT_EQ(scene.box().maxLength(), 7);
    EXPECT_EQ(ask(CB_ADDSTRING, 0, L"Rhubarb"), CB_ERR);
    EXPECT_EQ(ask(CB_RESETCONTENT), CB_ERR);
    EXPECT_EQ(ask(CB_GETCOUNT), 12);
    ask(CB_SHOWDROPDOWN, TRUE);
    EXPECT(scene.box().isDropped());
    EXPECT_EQ(ask(CB_GETDROPPEDSTATE), 1);
    scene.box().setExtendedUi(true);
    EXPECT_EQ(ask(CB_GETEXTENDEDUI), 1);
}

TEST(combo_list_is_as_wide_as_it_is_told_and_no_narrower_than_the_field) {
    ComboScene scene;
    struct Row {
        std::int32_t told;
        int wide;
    };
    for (const Row& row : {Row{260, 260}, Row{50, Width}, Row{0, Width}}) {
        scene.box().setDroppedWidth(row.told);
        scene.pressButton();
        EXPECT_EQ(sizeOf(scene.list()).cx, row.wide);
        scene.pressButton();
    }
}

TEST(combo_comes_back_with_its_window) {
    ComboScene scene;
    scene.box().setListIndex(4);
    scene.box().setLocked(true);
    scene.changeHost();
    EXPECT_EQ(shownLine(scene.edit()), L"Fig");
    EXPECT((GetWindowLongW(scene.edit(), GWL_STYLE) & ES_READONLY) != 0);
    EXPECT_EQ(sizeOf(scene.combo()).cy, Height);
    EXPECT_EQ(SendMessageW(scene.combo(), CB_GETCOUNT, 0, 0), 12);
}

TEST(combo_with_a_frame_of_its_own_shows_any_script) {
    static constexpr std::int16_t ButtonWidth = 16;
    ComboScene scene;
    scene.box().installFrame(ButtonWidth);
    for (const bool again : {false, true}) {
        if (again) scene.changeHost();
        EXPECT(GetPropA(scene.combo(), "KelControlsProc") != nullptr);
        ListItems items;
        items.add(u"\u014Csaka \u0434");
        scene.box().setItems(std::move(items));
        scene.pressButton();
        wchar_t shown[20]{};
        SendMessageW(scene.list(), LB_GETTEXT, 0, reinterpret_cast<LPARAM>(shown));
        EXPECT_EQ(std::wstring(shown), L"\u014Csaka \u0434");
        scene.clickRow(0);
        EXPECT_EQ(shownLine(scene.edit()), L"\u014Csaka \u0434");
        EXPECT_EQ(sizeOf(scene.combo()).cy, Height);
    }
}

TEST(combo_with_a_full_list_opens_at_once) {
    ComboScene scene;
    ListItems items;
    for (int i = 0; i < 32767; ++i) items.add(u"Item " + std::u16string(1, static_cast<char16_t>(u'a' + i % 26)));
    scene.box().setItems(std::move(items));
    const double before = workedSeconds();
    scene.pressButton();
    const double opening = workedSeconds() - before;
    EXPECT(scene.listShows());
    EXPECT_EQ(SendMessageW(scene.list(), LB_GETCOUNT, 0, 0), 32767);
    EXPECT(opening < 0.1);
}

}  // namespace kel::tests
