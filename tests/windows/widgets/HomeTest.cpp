#include <windows.h>

#include "controls/Classes.h"
#include "platform/win32/home/Win32Home.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/widgets/Scene.h"

/// A form's window with real controls.
namespace kel::tests {

namespace {

/// A form of two text fields, of which the first is "&One", and the other "&Two", and a frame around nothing.
class TwoFields {
public:
    explicit TwoFields(std::u16string_view one = u"&One") : Home_(win32::makeHome({.twipsPerPixel = 15})) {
        Window_ = Home_->makeWindow({u"form", {6000, 3000}, false}, Home_->system());
        One_ = &place(one, 0);
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

TEST(a_caption_given_late_comes_before_its_field) {
    TwoFields form(u"");
    form.window().focus(form.one());
    HWND const field = GetFocus();
    EXPECT(GetWindow(field, GW_HWNDPREV) == nullptr);
    form.one().control().widgets().label->setCaption(u"&Late");
    HWND const label = GetWindow(field, GW_HWNDPREV);
    EXPECT_EQ(textOf(label), L"&Late");
    HWND const pane = GetAncestor(field, GA_PARENT);
    EXPECT_EQ(placeIn(pane, label).right, placeIn(pane, field).left);
    form.one().control().widgets().label->setCaption(u"");
    EXPECT(IsWindow(label) == FALSE);
}

}  // namespace kel::tests
