#include <gtest/gtest.h>

#include "controls/number/KelNumber.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"

namespace kel::test {
namespace {

class Hands : public testing::Test {
protected:
    std::string log() { return ProbeControl::takeLog(); }

    TestForm Form;
    headless::HeadlessWindow& Window = Form.window();
    PlacedControl& A = Form.place(u"a");
    PlacedControl& B = Form.place(u"b");
    ProbeControl& Control = probe(A);
    TextBox& Box = Control.box();
    std::string Placed = log();
};

TEST_F(Hands, AClickFocusesThenPlacesTheCaretThenCounts) {
    Box.setText(u"abc");
    log();
    Control.on("GotFocus", [this] { Box.setSelLength(3); });
    std::string atMouseDown;
    Control.on("MouseDown", [&] { atMouseDown = drawn(Box); });
    Window.click(A, 2);
    EXPECT_EQ(log(), "a.EnterFocus a.GotFocus a.MouseDown a.Click");
    EXPECT_EQ(atMouseDown, "ab|c");
    Window.click(A, INT32_MAX);
    EXPECT_EQ(log(), "a.MouseDown a.Click");
    EXPECT_EQ(drawn(Box), "abc|");
    Window.focus(B);
    log();
    Window.rightClick(A);
    EXPECT_EQ(log(), "b.LostFocus b.ExitFocus a.EnterFocus a.GotFocus a.MouseDownRight");
    Box.setSelStart(1);
    Window.rightClick(A);
    EXPECT_EQ(drawn(Box), "a|bc");
    press(Window, "'x'");
    Window.click(A, 2);
    press(Window, "'y' Ctrl+Z");
    EXPECT_EQ(drawn(Box), "ax|bc") << "what is typed after a click is undone apart";
}

TEST_F(Hands, HandlersChangeAndSwallowKeys) {
    Window.focus(A);
    log();
    Control.changeCode = [](std::int16_t) { return std::int16_t{0}; };
    press(Window, "Enter Home Delete");
    EXPECT_EQ(log(), "a.KeyDown a.KeyDown a.KeyDown") << "a swallowed key gives no key-press";
    Control.changeCode = {};
    Control.changeKey = [](char32_t key) { return key == U'x' ? 0 : key == U'<' ? char32_t{8} : key - 32; };
    press(Window, "'axb<c'");
    EXPECT_EQ(drawn(Box), "AC|");
    EXPECT_EQ(ProbeControl::countOf(log(), "Change"), 4);
}

TEST_F(Hands, HandlersOfAKeyMayDoAnythingToTheBox) {
    struct Case {
        const char* what;
        const char* told;
        ProbeControl::Handler does;
        const char* after;
        const char* log;
    };
    const Case rows[] = {
        {"disabled on key-down", "KeyDown", [this] { Box.setEnabled(false); }, "a[b]c",
         "a.KeyDown a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab"},
        {"locked on key-press", "KeyPress", [this] { Box.setLocked(true); }, "a[b]c", "a.KeyDown a.KeyPress"},
        {"focus moved on key-press", "KeyPress", [this] { B.control().widgets().field->setFocus(); }, "aq|c",
         "a.KeyDown a.KeyPress a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus a.Change"},
        {"another text on key-press", "KeyPress", [this] { Box.setText(u"12"); }, "q|12",
         "a.KeyDown a.KeyPress a.Change a.Change"},
        {"another text on change", "Change",
         [this] {
             Control.on("Change", {});
             Box.setText(Box.text() + u"!");
         },
         "|aqc!", "a.KeyDown a.KeyPress a.Change a.Change"},
        {"disabled on change", "Change", [this] { Control.host().container.setEnabled(false); }, "aq|c",
         "a.KeyDown a.KeyPress a.Change a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab"},
    };
    for (const Case& row : rows) {
        SCOPED_TRACE(row.what);
        Control.host().container.setEnabled(true);
        Box.setEnabled(true);
        Box.setVisible(true);
        Box.setLocked(false);
        Window.focus(A);
        put(Box, "a[b]c");
        log();
        Control.on(row.told, row.does);
        Window.press({'Q', U'q', NoModifier});
        Control.on(row.told, {});
        EXPECT_EQ(drawn(Box), row.after);
        EXPECT_EQ(log(), row.log);
    }
}

TEST_F(Hands, AFieldDisabledByThePressIsNotClicked) {
    Control.on("MouseDown", [this] { Box.setEnabled(false); });
    Window.click(A, 0);
    EXPECT_EQ(log(), "a.EnterFocus a.GotFocus a.MouseDown a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab");
    Window.click(A, 0);
    Window.rightClick(A);
    EXPECT_EQ(log(), "");
}

TEST_F(Hands, ASpinnerStepsAsOftenAsItIsClickedAndLeavesTheFocusToItsControl) {
    Control.spinner().setVisible(true);
    put(Box, "1[2]3");
    Window.focus(B);
    log();
    Window.spin(A, true);
    EXPECT_EQ(log(), "b.LostFocus b.ExitFocus a.EnterFocus a.GotFocus a.Spin2");
    Window.spin(A, false);
    Window.spin(A, false);
    EXPECT_EQ(log(), "a.Spin0 a.Spin0");
    EXPECT_EQ(drawn(Box), "1[2]3") << "pressing it is no click into the box";

    Control.on("Spin2", [this] { Form.home().settings().makeDefaultRuntime()->SendKey(keys::Tab); });
    Window.spin(A, true);
    EXPECT_EQ(log(), "a.Spin2 a.LostFocus a.ExitFocus b.EnterFocus b.GotFocusByTab");
    EXPECT_EQ(Control.spinner().value(), UpDown::Rest);
}

TEST_F(Hands, ASpinnerThatCannotBePressedTakesNothing) {
    Placement unseen;
    unseen.visible = false;
    PlacedControl& hidden = Form.place(u"h", ProbeControl::SingleLine, unseen);
    probe(hidden).spinner().setVisible(true);
    Window.focus(B);
    log();
    Window.spin(A, true);
    EXPECT_EQ(log(), "") << "a new spinner is hidden";
    Control.spinner().setVisible(true);
    Control.spinner().setEnabled(false);
    Window.spin(A, true);
    Control.spinner().setEnabled(true);
    Control.host().container.setEnabled(false);
    Window.spin(A, false);
    Window.spin(hidden, true);
    EXPECT_EQ(log(), "");
    EXPECT_EQ(Form.focused(), "b");

    Control.host().container.setEnabled(true);
    Control.on("GotFocus", [this] { Control.spinner().setEnabled(false); });
    Window.spin(A, true);
    Window.spin(A, true);
    EXPECT_EQ(ProbeControl::countOf(log(), "Spin"), 1);
}

TEST_F(Hands, TheWheelIsForTheFieldWithTheFocus) {
    Window.turnWheel(A, 1);
    Window.focus(B);
    log();
    Window.turnWheel(A, 1);
    Window.turnWheel(B, 2);
    Window.turnWheel(B, -1);
    probe(B).box().setEnabled(false);
    Window.turnWheel(B, 1);
    EXPECT_EQ(log(), "b.Wheel2 b.Wheel-1 b.LostFocus b.ExitFocus a.EnterFocus a.GotFocusByTab");
    EXPECT_TRUE(Box.turnWheelBy(1));
    Control.usesWheel = false;
    EXPECT_FALSE(Box.turnWheelBy(TextEntry::WheelNotch));
}

TEST_F(Hands, ALabelsMnemonicLeadsToTheFieldAfterIt) {
    ForeignBlock label;
    label.kind = ForeignBlock::Kind::Label;
    label.caption = u"&Terms";
    label.placement.tabIndex = 3;
    Window.placeForeign(label);
    Placement placement;
    for (const char16_t* const name : {u"9", u"5", u"7"}) {
        placement.tabIndex = *name - u'0';
        Form.place(name, ProbeControl::SingleLine, placement);
    }
    press(Window, "Alt+T");
    EXPECT_EQ(Form.focused(), "5");
}

TEST_F(Hands, ADropTakesTheFocusAndPastes) {
    put(Box, "1[2]3");
    Window.focus(B);
    log();
    Window.drop(A, 1, u"xy\nz");
    EXPECT_EQ(log(), "b.LostFocus b.ExitFocus a.EnterFocus a.GotFocus a.Paste a.Change");
    EXPECT_EQ(drawn(Box), "1xy|23");
    press(Window, "Ctrl+Z");
    EXPECT_EQ(drawn(Box), "1|23");
    Box.setMaxLength(4);
    Window.drop(A, INT32_MAX, u"ab");
    EXPECT_EQ(drawn(Box), "123a|");

    Window.focus(B);
    log();
    Box.setLocked(true);
    Window.drop(A, 0, u"x");
    Box.setLocked(false);
    Box.setEnabled(false);
    Window.drop(A, 0, u"x");
    EXPECT_EQ(log(), "") << "a field that takes no text takes no drop";
}

TEST_F(Hands, HandlersChangeAndRefuseWhatIsPasted) {
    using Pasted = std::optional<std::u16string>;
    struct Case {
        const char* what;
        std::function<Pasted(std::u16string)> makes;
        const char* after;
        int changes;
    };
    const Case rows[] = {
        {"as it is", [](const std::u16string& text) { return Pasted(text); }, "1x y|3", 1},
        {"refused", [](const std::u16string&) { return Pasted(); }, "1[2]3", 0},
        {"to nothing", [](const std::u16string&) { return Pasted(u""); }, "1|3", 1},
        {"locked meanwhile",
         [this](const std::u16string& text) {
             Box.setLocked(true);
             return Pasted(text);
         },
         "1[2]3", 0},
        {"another text meanwhile",
         [this](const std::u16string& text) {
             Box.setText(u"9");
             return Pasted(text);
         },
         "x y|9", 2},
    };
    Window.focus(A);
    for (const Case& row : rows) {
        SCOPED_TRACE(row.what);
        put(Box, "1[2]3");
        log();
        Control.changePaste = row.makes;
        press(Window, "paste'x y'");
        Control.changePaste = {};
        Box.setLocked(false);
        EXPECT_EQ(drawn(Box), row.after);
        EXPECT_EQ(ProbeControl::countOf(log(), "Change"), row.changes);
    }
    put(Box, "1[2]3");
    Control.changePaste = rows[1].makes;
    Box.moveSelection(0);
    EXPECT_EQ(drawn(Box), "1[2]3") << "a move is a paste";
}

TEST_F(Hands, WhatAnInputMethodTypesAfterTheKeypadsDecimalKeyIsWhatItIs) {
    PlacedControl& placed = Form.place(u"amount", KelNumberModel);
    auto& amount = static_cast<KelNumber&>(placed.control());
    amount.put_Decimals(2);
    Window.focus(placed);
    const KeyStroke keypad{keys::Decimal, U',', NoModifier};
    const KeyStroke silent{keys::Decimal, 0, ControlKey};
    for (const KeyStroke& stroke : {KeyStroke{0, U'1'}, keypad, KeyStroke{0, U'5'}, silent, KeyStroke{0, U'7'}})
        Window.press(stroke);
    EXPECT_EQ(drawn(*amount.widgets().entry), "1.57|");
}

}  // namespace
}  // namespace kel::test
