#include "host/widgets/CheckBox.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "host/focus/Mnemonic.h"

namespace kel::test {
namespace {

/// A check box on a host that tests work, and its view. It writes down what is told: "click1" with the value, "key97",
/// "seen" when what is shown is out of date, "barred" when the focus is to go on.
class Box : public testing::Test, protected WidgetHost, private CheckBoxListener {
protected:
    struct Seen final : View {
        explicit Seen(std::string& log) : Log(log) {}
        void outOfDate() override { Log += "seen "; }
        void paintAgain() override { Log += "again "; }
        std::string& Log;
    };

    using WidgetHost::makeView;
    std::unique_ptr<View> makeView(CheckBox&) override { return std::make_unique<Seen>(Log); }
    bool takesInput() const override { return ControlTakesInput; }
    void moveFocusTo(FieldWidget& field) override {
        Log += "focus ";
        if (FocusArrives && field.takesInput()) field.gotFocus();
    }
    void focusBarred(FieldWidget&) override { Log += "barred "; }
    std::u16string clipboardText() override { return {}; }
    void setClipboardText(std::u16string_view) override {}
    void Check1_Click() override {
        Log += "click" + std::to_string(It.value()) + " ";
        OnClick();
    }
    void Check1_KeyPress(char32_t& KeyAscii) override {
        Log += "key" + std::to_string(static_cast<unsigned>(KeyAscii)) + " ";
        if (SwallowKeys) KeyAscii = 0;
    }

    std::string told() { return std::exchange(Log, {}); }

    std::string Log;
    bool ControlTakesInput = true;
    bool FocusArrives = true;
    bool SwallowKeys = false;
    std::function<void()> OnClick = [] {};
    CheckBox It{*this, *this};
};

TEST_F(Box, ItsViewIsToldOnceUntilItTakesTheChanges) {
    It.setCaption(u"I &agree");
    It.setValue(CheckBox::Grey);
    It.setForeColor(0);
    EXPECT_EQ(told(), "seen click2 ");
    const Changes changes = It.takeChanges();
    for (const Change change : {Change::Caption, Change::Mnemonic, Change::Value, Change::Colors})
        EXPECT_TRUE(changes.has(change));
    for (const Change change : {Change::Place, Change::Enabled, Change::Font, Change::ToolTip})
        EXPECT_FALSE(changes.has(change));
    It.setCaption(u"I &agree");
    It.setValue(CheckBox::Grey);
    It.setForeColor(0);
    It.setFont(u"", 0);
    It.setEnabled(true);
    EXPECT_EQ(told(), "") << "all is as it was";
    It.setCaption(u"&all");
    EXPECT_FALSE(It.takeChanges().has(Change::Mnemonic));
    It.refresh();
    EXPECT_EQ(told(), "seen again ");
}

TEST_F(Box, TheCaptionMarksItsMnemonic) {
    const struct {
        const char16_t* caption;
        char16_t mnemonic;
        const char16_t* shown;
    } cases[] = {{u"", 0, u""},
                 {u"&a", u'a', u"a"},
                 {u"I &agree", u'a', u"I agree"},
                 {u"&Salt && &pepper", u'S', u"Salt & pepper"},
                 {u"Salt &&&pepper", u'p', u"Salt &pepper"},
                 {u"Salt && pepper", 0, u"Salt & pepper"},
                 {u"Salt &", 0, u"Salt &"}};
    for (const auto& row : cases) {
        It.setCaption(row.caption);
        EXPECT_EQ(It.mnemonic(), row.mnemonic);
        const ReadCaption read = readCaption(row.caption);
        EXPECT_EQ(read.text, row.shown);
        EXPECT_EQ(read.mnemonic == read.text.npos ? 0 : read.text[read.mnemonic], row.mnemonic);
    }
}

TEST_F(Box, WhateverPressesItGivesItTheFocusFirst) {
    It.press();
    EXPECT_EQ(told(), "focus seen click1 ");
    FocusArrives = false;
    It.press();
    EXPECT_EQ(told(), "focus click0 ") << "it has the focus by now";
    It.lostFocus();
    It.press();
    EXPECT_EQ(told(), "focus ") << "which somebody moved elsewhere";
    It.release();
    EXPECT_EQ(told(), "click1 ") << "a button that went down before goes up";
}

TEST_F(Box, WhatTakesNoInputIsNotPressed) {
    It.gotFocus();
    const std::function<void()> deeds[] = {[this] { It.setEnabled(false); }, [this] { It.setVisible(false); },
                                           [this] { ControlTakesInput = false; }};
    for (const auto& deed : deeds) {
        deed();
        told();
        It.press();
        It.release();
        It.strike(strokeFor(U' '));
        EXPECT_EQ(told(), "") << "nor does it ask for the focus";
        EXPECT_EQ(It.value(), CheckBox::Unchecked);
        It.setEnabled(true);
        It.setVisible(true);
        ControlTakesInput = true;
    }
    It.takeChanges();
    told();
    It.setEnabled(false);
    It.setEnabled(false);
    EXPECT_EQ(told(), "barred seen ") << "before it is seen, and once";
}

TEST_F(Box, KeysOfferWhatTheyTypeAndOnlyABlankPresses) {
    using enum CheckBox::Key;
    const struct {
        KeyStroke stroke;
        const char* log;
        CheckBox::Key deed;
    } cases[] = {{{keys::Space, U' ', NoModifier}, "key32 ", Presses},
                 {{keys::Space, U' ', ShiftKey}, "key32 ", Presses},
                 {{0, U' ', NoModifier}, "key32 ", Presses},
                 {{keys::Space, U' ', AltKey}, "", Ignored},
                 {{keys::Packet, 0xA0, NoModifier}, "key160 ", Ignored},
                 {{'A', U'a', NoModifier}, "key97 ", Ignored},
                 {{keys::Enter, 0, NoModifier}, "key13 ", Ignored},
                 {{keys::Tab, 0, NoModifier}, "", Ignored},
                 {{keys::Down, 0, NoModifier}, "", Ignored}};
    for (const auto& row : cases) {
        EXPECT_EQ(It.keyDown(row.stroke), row.deed);
        EXPECT_EQ(told(), row.log);
    }
    SwallowKeys = true;
    EXPECT_EQ(It.keyDown(strokeFor(U' ')), Swallowed);
    EXPECT_EQ(It.value(), CheckBox::Unchecked) << "none of them has been let go";
    SwallowKeys = false;
    EXPECT_TRUE(It.strike(strokeFor(U' '))) << "nobody else has it";
    EXPECT_FALSE(It.strike({keys::Enter})) << "the window may";
}

TEST_F(Box, AListenerMayChangeItInItsClick) {
    OnClick = [this] {
        if (It.value() == CheckBox::Checked) It.setValue(CheckBox::Unchecked);
    };
    It.press();
    EXPECT_EQ(told(), "focus seen click1 click0 ");
    EXPECT_EQ(It.value(), CheckBox::Unchecked);
}

}  // namespace
}  // namespace kel::test
