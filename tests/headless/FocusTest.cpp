#include <gtest/gtest.h>

#include "runtime/KelRuntime.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"

namespace kel::test {
namespace {

Placement tabAt(std::int32_t index) {
    Placement placement;
    placement.tabIndex = index;
    return placement;
}

class Focus : public testing::Test {
protected:
    std::string log() { return ProbeControl::takeLog(); }
    ProbeControl& a() { return probe(A); }
    ProbeControl& b() { return probe(B); }
    ProbeControl& c() { return probe(C); }

    TestForm Form;
    FormWindow& Window = Form.window();
    PlacedControl& A = Form.place(u"a");
    PlacedControl& B = Form.place(u"b");
    PlacedControl& C = Form.place(u"c");
    std::string Placed = log();
};

TEST_F(Focus, GoesFromBoxToControlToControlToBox) {
    Window.focus(A);
    EXPECT_EQ(log(), "a.EnterFocus a.GotFocus");
    press(Window, "Tab");
    EXPECT_EQ(log(), "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab");
    Window.focus(C);
    EXPECT_EQ(log(), "b.LostFocus b.ExitFocus c.EnterFocus c.GotFocus");
    Window.focus(C);
    EXPECT_EQ(log(), "") << "it is there already";
    EXPECT_FALSE(Form.home().system().tabKeyDown());
}

TEST(TabOrder, GoesByIndexAroundPastWhatTakesNoFocus) {
    TestForm form;
    Placement hidden = tabAt(1);
    hidden.visible = false;
    Placement noStop = tabAt(5);
    noStop.tabStop = false;
    ForeignBlock panel;
    panel.kind = ForeignBlock::Kind::Panel;
    panel.placement.visible = false;
    Placement inHidden = tabAt(1);
    inHidden.parent = form.window().placeForeign(panel);
    form.place(u"last", ProbeControl::SingleLine, tabAt(9));
    form.place(u"hidden", ProbeControl::SingleLine, hidden);
    form.place(u"inHidden", ProbeControl::SingleLine, inHidden);
    form.place(u"first", ProbeControl::SingleLine, tabAt(1));
    PlacedControl& byHand = form.place(u"byHand", ProbeControl::SingleLine, noStop);
    form.place(u"second", ProbeControl::SingleLine, tabAt(1));
    probe(form.place(u"disabled", ProbeControl::SingleLine, tabAt(3))).box().setEnabled(false);
    const auto walk = [&form](const char* key) {
        press(form.window(), key);
        return form.focused();
    };
    EXPECT_EQ(form.focused(), "nowhere");
    EXPECT_EQ(walk("Tab"), "first");
    EXPECT_EQ(walk("Tab"), "second");
    EXPECT_EQ(walk("Tab"), "last");
    EXPECT_EQ(walk("Tab"), "first");
    EXPECT_EQ(walk("Shift+Tab"), "last");
    EXPECT_EQ(walk("Shift+Tab*2"), "first");
    form.window().focus(byHand);
    EXPECT_EQ(walk("Ctrl+Tab"), "byHand");
    EXPECT_EQ(walk("Alt+Tab"), "byHand");
    EXPECT_EQ(walk("Tab"), "last");
    form.window().focus(byHand);
    EXPECT_EQ(walk("Shift+Tab"), "second");
}

TEST_F(Focus, FromNowhereShiftTabEntersTheLast) {
    press(Window, "'x' Shift+Tab");
    EXPECT_EQ(log(), "c.EnterFocus c.GotFocusByTab");
}

TEST_F(Focus, StaysWhereNothingElseTakesIt) {
    a().host().container.setEnabled(false);
    c().box().setVisible(false);
    press(Window, "Tab");
    log();
    press(Window, "Tab Shift+Tab");
    EXPECT_EQ(log(), "");
    EXPECT_EQ(Form.focused(), "b");
    Window.focus(A);
    Window.click(C, 0);
    EXPECT_EQ(Form.focused(), "b");
    EXPECT_EQ(log(), "");
}

TEST_F(Focus, GoesOnFromWhatIsDisabledOrHidden) {
    const std::function<void()> bars[] = {
        [this] { a().box().setEnabled(false); },
        [this] { a().box().setVisible(false); },
        [this] { a().host().container.setEnabled(false); },
    };
    for (const auto& bar : bars) {
        a().box().setEnabled(true);
        a().box().setVisible(true);
        Window.focus(A);
        log();
        bar();
        EXPECT_EQ(log(), "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab");
        EXPECT_FALSE(Form.home().system().tabKeyDown());
    }
    b().box().setVisible(false);
    log();
    c().box().setEnabled(false);
    EXPECT_EQ(log(), "c.LostFocus c.ExitFocus") << "nothing else takes it";
    b().box().setFocus();
    press(Window, "'x'");
    EXPECT_EQ(log(), "") << "keys go nowhere";
    EXPECT_EQ(Form.focused(), "nowhere");
}

TEST_F(Focus, HandlersMayMoveIt) {
    struct Case {
        const char* what;
        ProbeControl& who;
        const char* told;
        ProbeControl::Handler does;
        const char* log;
        const char* focused;
    };
    const Case rows[] = {
        {"kept back while leaving", a(), "LostFocus", [this] { Window.focus(A); }, "a.LostFocus a.GotFocus", "a"},
        {"sent on by the field left", a(), "LostFocus", [this] { c().box().setFocus(); },
         "a.LostFocus a.ExitFocus c.EnterFocus c.GotFocusByTab", "c"},
        {"sent on by the control left", a(), "ExitFocus", [this] { Window.focus(C); },
         "a.LostFocus a.ExitFocus c.EnterFocus c.GotFocus", "c"},
        {"sent on by the control entered", b(), "EnterFocus", [this] { Window.focus(C); },
         "a.LostFocus a.ExitFocus b.EnterFocus b.ExitFocus c.EnterFocus c.GotFocus", "c"},
        {"sent on by the field entered", b(), "GotFocusByTab", [this] { Window.focus(C); },
         "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab b.LostFocus b.ExitFocus c.EnterFocus c.GotFocus", "c"},
        {"disabled before it came", a(), "LostFocus", [this] { b().box().setEnabled(false); },
         "a.LostFocus a.ExitFocus c.EnterFocus c.GotFocusByTab", "c"},
        {"disabled on entering", b(), "EnterFocus", [this] { b().host().container.setEnabled(false); },
         "a.LostFocus a.ExitFocus b.EnterFocus b.ExitFocus c.EnterFocus c.GotFocusByTab", "c"},
        {"hidden as soon as it has it", b(), "GotFocusByTab", [this] { b().box().setVisible(false); },
         "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab b.LostFocus b.ExitFocus c.EnterFocus c.GotFocusByTab",
         "c"},
    };
    for (const Case& row : rows) {
        SCOPED_TRACE(row.what);
        for (ProbeControl* each : {&a(), &b(), &c()}) {
            each->box().setEnabled(true);
            each->box().setVisible(true);
            each->host().container.setEnabled(true);
        }
        Window.focus(A);
        log();
        row.who.on(row.told, row.does);
        press(Window, "Tab");
        row.who.on(row.told, {});
        EXPECT_EQ(log(), row.log);
        EXPECT_EQ(Form.focused(), row.focused);
        EXPECT_FALSE(Form.home().system().tabKeyDown());
    }
}

TEST_F(Focus, ASentKeyIsPressedBehindTheStroke) {
    const auto runtime = Form.home().settings().makeDefaultRuntime();
    Window.focus(A);
    log();
    a().on("KeyPress", [&] { runtime->SendKey(keys::Tab); });
    press(Window, "'x'");
    EXPECT_EQ(log(), "a.KeyPress a.Change a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab");
    EXPECT_EQ(drawn(a().box()), "x|");

    runtime->SendKey('Q');
    EXPECT_EQ(log(), "b.KeyDown b.KeyPress b.Change") << "at once when no stroke is under way";
    EXPECT_EQ(drawn(b().box()), "q|");
}

TEST_F(Focus, EveryWindowHasItsOwnAndTheOneWorkedLastHasTheKeys) {
    Window.focus(A);
    const auto runtime = Form.home().settings().makeDefaultRuntime();
    {
        const auto other = Form.home().makeWindow({}, Form.home().system());
        other->show();
        runtime->SendKey(keys::Tab);
        EXPECT_EQ(Form.focused(), "a");
        b().box().setFocus();
        runtime->SendKey(keys::Tab);
        EXPECT_EQ(Form.focused(), "c");
        other->press({});
    }
    runtime->SendKey(keys::Tab);
    EXPECT_EQ(Form.focused(), "c") << "the window that had the keys is gone";
}

}  // namespace
}  // namespace kel::test
