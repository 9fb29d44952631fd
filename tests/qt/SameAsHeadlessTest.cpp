#include <gtest/gtest.h>
#include <random>

#include "controls/check/KelCheck.h"
#include "controls/combo/KelCombo.h"
#include "controls/datetime/KelDate.h"
#include "controls/number/KelNumber.h"
#include "platform/headless/HeadlessHome.h"
#include "platform/qt/home/QtHome.h"
#include "tests/qt/QtForm.h"
#include "values/Text.h"

/// Two forms, one on the screen and one in memory, worked by the same hands: at each step they must tell the
/// same. Whatever one of them does differently shows here first.
namespace kel::test {
namespace {

constexpr std::size_t TextFields = 4;
constexpr std::size_t NumberField = 4;
constexpr std::size_t DateField = 5;
constexpr std::size_t CheckField = 6;
constexpr std::size_t LimitedField = 7;
constexpr std::size_t FreeField = 8;
constexpr std::size_t Fields = 9;

class Worked {
public:
    explicit Worked(std::unique_ptr<Home> home) : Form_(std::move(home)) {
        for (const char16_t* const name : {u"a", u"b", u"c", u"m"}) Controls_.push_back(&Form_.place(name, 1500));
        text(1).entry().put_MaxLength(6);
        text(2).entry().put_SelectOnFocus(true);
        text(3).put_MultiLine(true);
        Controls_.push_back(&Form_.place(u"n", 300, KelNumberModel));
        Controls_.push_back(&Form_.place(u"d", 300, KelDateModel));
        Controls_.push_back(&Form_.place(u"k", 300, KelCheckModel));
        for (const char16_t* const name : {u"l", u"f"}) {
            Controls_.push_back(&Form_.place(name, 300, KelComboModel));
            combo(Controls_.size() - 1).put_List(u"abc,abd,17,,X y,abc,70");
        }
        combo(FreeField).put_LimitToList(false);
        combo(FreeField).entry().put_SelectOnFocus(true);
        auto& number = static_cast<KelNumber&>(control(NumberField).control());
        number.put_Decimals(2);
        number.entry().put_UpDown(true);
        for (const std::size_t field : {std::size_t{1}, NumberField, FreeField})
            EntryField::of(control(field).control()).put_Caption(u"&Same");
        check().put_Caption(u"&Same");
        combo(LimitedField).entry().put_Caption(u"&Own");
        Form_.show();
    }

    FormWindow& window() { return Form_.window(); }
    PlacedControl& control(std::size_t index) { return *Controls_[index]; }
    KelText& text(std::size_t index) { return textOf(*Controls_[index]); }
    KelCombo& combo(std::size_t index) { return static_cast<KelCombo&>(control(index).control()); }
    KelCheck& check() { return static_cast<KelCheck&>(control(CheckField).control()); }

    std::string state() {
        const PlacedControl* const focused = window().focused();
        std::string state = Form_.takeLog() + "\nfocus " + (focused == nullptr ? "-" : toUtf8(focused->name()));
        for (PlacedControl* const placed : Controls_) {
            const WidgetSet widgets = placed->control().widgets();
            state +=
                "\n" + (widgets.entry != nullptr ? drawn(*widgets.entry) : std::to_string(widgets.checkBox->value()));
            if (const ComboBox* const box = widgets.comboBox)
                state += " " + std::to_string(box->listIndex()) + (box->isDropped() ? " open" : "");
            state +=
                " " + std::to_string(widgets.field->backColor()) + " " + std::to_string(widgets.field->foreColor());
        }
        return state;
    }

private:
    TextForm Form_;
    std::vector<PlacedControl*> Controls_;
};

using Step = std::function<void(Worked&)>;

constexpr std::u16string_view TypedTexts[] = {
    u"",           u"abc",     u"red, green.", u"x\r\ny",          u"\U0001F600a\U0001F600",
    u"1,234.5",    u"a\rb\nc", u"e\u0301 x",   u"1\r\n\r\n3\r\n4", u"(a.b)  c",
    u"15/03/2013", u"-7",
};

class Dice {
public:
    explicit Dice(unsigned seed) : Random_(seed) {}
    std::size_t below(std::size_t count) { return Random_() % count; }
    template <class T, std::size_t Count>
    const T& oneOf(const T (&choices)[Count]) {
        return choices[below(Count)];
    }

private:
    std::mt19937 Random_;
};

Step typing(Dice& dice) {
    const char32_t character = dice.oneOf(
        {U'a', U'b', U'X', U' ', U'.', U'(', U'\u00E9', U'\u0301', U'\U0001F600', U'1', U'7', U'0', U'-', U'/'});
    return [character](Worked& form) { form.window().press(strokeFor(character)); };
}

Step key(Dice& dice) {
    const std::int16_t code =
        dice.oneOf({keys::Backspace, keys::Delete, keys::Left, keys::Right, keys::Home, keys::End, keys::Enter,
                    keys::Insert, keys::Escape, keys::Tab, keys::Up, keys::Down, keys::PageUp, keys::PageDown});
    const bool plain = code == keys::Enter || dice.below(2) == 0;
    // Ctrl and Tab mean nothing here.
    const std::size_t modifiers = plain ? 0 : dice.below(code == keys::Tab ? 2 : 4);
    return [=](Worked& form) { form.window().press({code, 0, static_cast<Modifiers>(modifiers)}); };
}

Step command(Dice& dice) {
    if (dice.below(6) == 0) {
        const char16_t mnemonic = dice.oneOf({u's', u's', u'S', u'o', u'x'});
        KeyStroke stroke = strokeFor(mnemonic);
        stroke.modifiers = stroke.modifiers | AltKey;
        return [stroke](Worked& form) { form.window().press(stroke); };
    }
    const auto letter = static_cast<std::int16_t>(dice.oneOf({'A', 'C', 'V', 'X', 'Y', 'Z', 'Z'}));
    const Modifiers modifiers = dice.below(8) == 0 ? ControlKey | ShiftKey : ControlKey;
    return [=](Worked& form) { form.window().press({letter, 0, modifiers}); };
}

Step hand(Dice& dice) {
    const std::size_t field = dice.below(Fields);
    const auto position = static_cast<std::int32_t>(dice.below(12));
    const std::u16string_view text = dice.oneOf(TypedTexts);
    const bool up = dice.below(2) == 0;
    const std::size_t list = dice.oneOf({LimitedField, FreeField});
    const auto item = static_cast<std::int32_t>(dice.below(7));
    switch (dice.below(8)) {
        case 6: return [=](Worked& form) { form.window().pick(form.control(list), item); };
        case 7: return [=](Worked& form) { form.window().press({keys::F4, 0, NoModifier}); };
        case 4: return [=](Worked& form) { form.window().spin(form.control(NumberField), up); };
        case 5: return [=](Worked& form) { form.window().spin(form.control(DateField), up); };
        case 0: return [=](Worked& form) { form.window().rightClick(form.control(field)); };
        case 1: return [=](Worked& form) { form.window().focus(form.control(field)); };
        case 2: return [=](Worked& form) { form.window().setClipboard(text); };
        default: return [=](Worked& form) { form.window().click(form.control(field), position); };
    }
}

Step program(Dice& dice) {
    const std::size_t field = dice.below(TextFields);
    const auto number = static_cast<std::int16_t>(dice.below(10));
    const std::u16string text(dice.oneOf(TypedTexts));
    const std::size_t list = dice.oneOf({LimitedField, FreeField});
    switch (dice.below(17)) {
        case 11:
            return [=](Worked& form) { form.combo(list).entry().put_Locked(!form.combo(list).entry().get_Locked()); };
        case 12:
            return [=](Worked& form) { form.combo(list).entry().put_Enabled(!form.combo(list).entry().get_Enabled()); };
        case 13: return [=](Worked& form) { form.combo(list).put_LimitToList(number < 6); };
        case 14: return [=](Worked& form) { form.combo(list).put_ListIndex(number); };
        case 15: return [=](Worked& form) { form.combo(list).put_Text(number < 5 ? u"abd" : text); };
        case 16: return [=](Worked& form) { static_cast<void>(form.combo(list).get_Text()); };
        case 0:
            return [=](Worked& form) { form.text(field).entry().put_Locked(!form.text(field).entry().get_Locked()); };
        case 1:
            return [=](Worked& form) { form.text(field).entry().put_Enabled(!form.text(field).entry().get_Enabled()); };
        case 2: return [=](Worked& form) { form.text(field).entry().put_MaxLength(number); };
        case 3: return [=](Worked& form) { form.text(field).put_MultiLine(!form.text(field).get_MultiLine()); };
        case 4: return [=](Worked& form) { form.text(field).put_PasswordChar(number < 7 ? u"" : u"*"); };
        case 5: return [=](Worked& form) { boxOf(form.control(field)).setSelStart(number); };
        case 6: return [=](Worked& form) { boxOf(form.control(field)).setSelLength(number - 2); };
        case 8: return [=](Worked& form) { form.check().put_Locked(!form.check().get_Locked()); };
        case 9: return [=](Worked& form) { form.check().put_Enabled(!form.check().get_Enabled()); };
        case 7: return [=](Worked& form) { boxOf(form.control(field)).setSelText(text); };
        default: return [=](Worked& form) { form.text(field).put_Text(text); };
    }
}

Step anyStep(Dice& dice) {
    const std::size_t kind = dice.below(20);
    if (kind < 7) return typing(dice);
    if (kind < 12) return key(dice);
    if (kind < 15) return command(dice);
    return kind < 18 ? hand(dice) : program(dice);
}

class SameAsHeadless : public testing::TestWithParam<unsigned> {};

TEST_P(SameAsHeadless, WhateverIsDone) {
    Dice dice(GetParam());
    HomeOptions options;
    options.region = findRegion(u"en-GB");
    ASSERT_NE(options.region, nullptr);
    Worked inMemory(headless::makeHome(options));
    Worked onScreen(qt::makeHome(options));
    for (int step = 0; step < 200; ++step) {
        const Step action = anyStep(dice);
        action(inMemory);
        action(onScreen);
        const std::string wanted = inMemory.state();
        ASSERT_EQ(onScreen.state(), wanted) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SameAsHeadless, testing::Range(1U, 25U));

}  // namespace
}  // namespace kel::test
