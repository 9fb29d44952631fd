#include <windows.h>

#include "controls/check/KelCheck.h"
#include "controls/Classes.h"
#include "controls/combo/KelCombo.h"
#include "controls/progress/KelProgressBar.h"
#include "controls/text/KelText.h"
#include "platform/win32/Win32Home.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Stage.h"

/// A form's window with real controls.
namespace kel::tests {

namespace {

class SilentObserver final : public ControlObserver {
public:
    void controlEvent(PlacedControl& /*control*/, const EventRow& /*event*/, std::span<Variant> /*values*/) override {}
    void propertyReported(PlacedControl& /*control*/, std::u16string_view /*name*/) override {}
};

/// A form of two text fields, "&One" and "&Two", and a frame around nothing.
class TwoFields {
public:
    TwoFields() : Home_(win32::makeHome({.twipsPerPixel = 15})) {
        Window_ = Home_->makeWindow({u"form", {6000, 3000}, false}, Home_->system());
        One_ = &place(u"&One", 0);
        Two_ = &place(u"&Two", 600);
        ForeignBlock frame;
        frame.kind = ForeignBlock::Kind::Panel;
        frame.placement.bounds = {300, 1500, 3000, 900};
        Window_->placeForeign(frame);
        Window_->show();
    }

    FormWindow& window() { return *Window_; }
    PlacedControl& one() { return *One_; }
    PlacedControl& two() { return *Two_; }

private:
    PlacedControl& place(std::u16string_view caption, std::int32_t top) {
        Placement placement;
        placement.name = u"field";
        PlacedControl& placed = Window_->place(*libraryClasses().find(u"KelText"), placement, Observer_);
        placed.control().InitProperties();
        placed.control().widgets().label->setCaption(caption);
        placed.setBounds({300, top, 4500, 300});
        return placed;
    }

    SilentObserver Observer_;
    std::unique_ptr<Home> Home_;
    std::unique_ptr<FormWindow> Window_;
    PlacedControl* One_ = nullptr;
    PlacedControl* Two_ = nullptr;
};

RECT placeIn(HWND form, HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

}  // namespace

TEST(a_form_on_a_finer_screen_keeps_its_size_in_twips) {
    TwoFields form;
    form.window().focus(form.two());
    HWND const field = GetFocus();
    HWND const root = GetAncestor(field, GA_ROOT);
    EXPECT_EQ(placeIn(root, field).left, 100L);
    EXPECT_EQ(placeIn(root, field).bottom, 60L);
    SendMessageW(root, 0x02E0, MAKEWPARAM(144, 144), 0);
    EXPECT_EQ(placeIn(root, field).left, 150L);
    EXPECT_EQ(placeIn(root, field).right, 480L);
    EXPECT_EQ(placeIn(root, field).bottom, 90L);
    RECT client{};
    GetClientRect(root, &client);
    EXPECT_EQ(client.right, 600L);
    EXPECT_EQ(client.bottom, 300L);
    EXPECT(form.window().focused() == &form.two());
}

TEST(a_caption_leads_to_its_field_and_names_it) {
    TwoFields form;
    EXPECT(form.window().focused() == nullptr);
    form.window().press({'T', U't', AltKey});
    EXPECT(form.window().focused() == &form.two());
    form.window().press({'O', U'O', AltKey});
    EXPECT(form.window().focused() == &form.one());
    HWND const label = GetWindow(GetFocus(), GW_HWNDPREV);
    EXPECT_EQ(textOf(label), L"&One");
    EXPECT((SendMessageW(label, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0);
}

TEST(a_check_boxs_own_mnemonic_toggles_it_and_that_of_a_label_before_it_does_not) {
    SilentObserver observer;
    const auto home = win32::makeHome({.twipsPerPixel = 15});
    const auto window = home->makeWindow({u"form", {6000, 3000}, false}, home->system());
    ForeignBlock label;
    label.kind = ForeignBlock::Kind::Label;
    label.caption = u"&Terms";
    window->placeForeign(label);
    Placement placement;
    placement.tabIndex = 1;
    window->place(KelProgressBarModel, placement, observer);
    placement.tabIndex = 2;
    PlacedControl& placed = window->place(KelCheckModel, placement, observer);
    auto& check = static_cast<KelCheck&>(placed.control());
    check.put_Caption(u"I &agree");
    placed.setBounds({300, 300, 3000, 300});
    window->show();
    window->press({'T', U't', AltKey});
    EXPECT(window->focused() == &placed);
    EXPECT(!check.get_Value());
    window->press({'A', U'A', AltKey});
    EXPECT(check.get_Value());
    // On a finer screen it is as large in twips, and is clicked wherever it is.
    SendMessageW(GetAncestor(GetFocus(), GA_ROOT), 0x02E0, MAKEWPARAM(144, 144), 0);
    EXPECT_EQ(placeIn(GetParent(GetFocus()), GetFocus()).right, 300L);
    EXPECT_EQ(placeIn(GetParent(GetFocus()), GetFocus()).top, 3L);
    window->click(placed, 0);
    EXPECT(!check.get_Value());
    check.put_Locked(true);
    window->press({'A', U'A', AltKey});
    window->click(placed, 0);
    EXPECT(!check.get_Value());
    EXPECT(window->focused() == nullptr);
}

TEST(a_form_that_comes_in_front_again_gives_the_focus_back) {
    TwoFields form;
    form.window().focus(form.two());
    HWND const field = GetFocus();
    {
        HostWindow other;
        SetFocus(other.button());
        settle();
    }
    SetActiveWindow(GetAncestor(field, GA_ROOT));
    settle();
    EXPECT(GetFocus() == field);
    EXPECT(form.window().focused() == &form.two());
}

TEST(a_field_that_is_disabled_or_turns_to_several_lines_hands_the_focus_on) {
    TwoFields form;
    auto& one = static_cast<KelText&>(form.one().control());
    form.window().focus(form.one());
    one.put_MultiLine(true);
    EXPECT(form.window().focused() == &form.one());
    EXPECT((GetWindowLongW(GetFocus(), GWL_STYLE) & ES_MULTILINE) != 0);
    one.entry().put_Enabled(false);
    EXPECT(form.window().focused() == &form.two());
    one.entry().put_Enabled(true);
    // Behind another window too.
    form.window().focus(form.one());
    HWND const root = GetAncestor(GetFocus(), GA_ROOT);
    {
        const HostWindow other;
        settle();
        one.entry().put_Enabled(false);
    }
    SetActiveWindow(root);
    settle();
    EXPECT(form.window().focused() == &form.two());
}

TEST(a_hand_picks_from_the_list_of_a_combo) {
    class ClickCounter final : public ControlObserver {
    public:
        void controlEvent(PlacedControl& /*control*/, const EventRow& event, std::span<Variant> /*values*/) override {
            Clicks += &event == &KelCombo::Click ? 1 : 0;
        }
        void propertyReported(PlacedControl& /*control*/, std::u16string_view /*name*/) override {}
        int Clicks = 0;
    };
    ClickCounter observer;
    const auto home = win32::makeHome({.twipsPerPixel = 15});
    const auto window = home->makeWindow({u"form", {6000, 3000}, false}, home->system());
    PlacedControl& placed = window->place(KelComboModel, Placement{}, observer);
    auto& combo = static_cast<KelCombo&>(placed.control());
    combo.InitProperties();
    StringArray items;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter) items.emplace_back(1, letter);
    combo.ListFromArray(items);
    placed.setBounds({300, 300, 4500, 300});
    window->show();
    window->pick(placed, 25);
    EXPECT(combo.get_Text() == u"z");
    window->pick(placed, 1);
    EXPECT(combo.get_Text() == u"b");
    EXPECT_EQ(observer.Clicks, 2);
    combo.entry().put_Locked(true);
    window->pick(placed, 2);
    combo.entry().put_Locked(false);
    combo.entry().put_Enabled(false);
    window->pick(placed, 3);
    EXPECT(combo.get_Text() == u"b");
    EXPECT_EQ(observer.Clicks, 2);
}

}  // namespace kel::tests
