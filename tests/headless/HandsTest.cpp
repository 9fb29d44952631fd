#include <gtest/gtest.h>

#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"

namespace kel::test {
namespace {

class Hands : public testing::Test {
protected:
    std::string log() { return ProbeControl::takeLog(); }

    TestForm Form;
    FormWindow& Window = Form.window();
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
    press(Window, "Enter X Delete");
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
         "a.KeyDown a.LostFocus a.ExitFocus"},
        {"hidden on key-press", "KeyPress", [this] { Box.setVisible(false); }, "a[b]c",
         "a.KeyDown a.KeyPress a.LostFocus a.ExitFocus"},
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
        {"a key pressed within a key", "KeyPress",
         [this] {
             Control.on("KeyPress", {});
             press(Window, "'w'");
         },
         "awq|c", "a.KeyDown a.KeyPress a.KeyPress a.Change a.Change"},
        {"disabled on change", "Change", [this] { Control.host().container.setEnabled(false); }, "aq|c",
         "a.KeyDown a.KeyPress a.Change a.LostFocus a.ExitFocus"},
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
    EXPECT_EQ(log(), "a.EnterFocus a.GotFocus a.MouseDown a.LostFocus a.ExitFocus");
    Window.click(A, 0);
    Window.rightClick(A);
    EXPECT_EQ(log(), "");
}

}  // namespace
}  // namespace kel::test
