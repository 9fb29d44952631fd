#include <gtest/gtest.h>

#include "common/basKelControls.h"
#include "controls/Classes.h"
#include "controls/datetime/KelDate.h"
#include "controls/number/KelNumber.h"
#include "controls/text/KelText.h"
#include "forms/play/ControlInWords.h"
#include "forms/ScriptValue.h"
#include "tests/check/OneControl.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"
#include "values/Text.h"

/// What a control does that no script can see.
namespace kel::test {
namespace {

std::u16string fontOf(const TextualWidget* widget) {
    if (widget == nullptr) return u"";
    return u" " + widget->font().name + (widget->font().bold ? u" bold" : u"");
}

/// What is seen of a control that was just dropped on a form, and what the form would save of it.
std::string newlyPlaced(std::u16string_view name) {
    OneControl form(*libraryClasses().find(name));
    Control& control = form.placed().control();
    control.InitProperties();
    control.Show();
    TestBag bag;
    control.WriteProperties(bag);
    const WidgetSet widgets = control.widgets();
    std::u16string all = describeLook(u"it", control) + fontOf(widgets.label) + fontOf(widgets.field) + u"\n" +
                         describeLayout(u"it", form.placed().bounds(), control);
    for (const auto& [property, value] : bag.Stored) all += u"\n" + property + u" = " + writeScriptValue(value);
    return toUtf8(all);
}

TEST(NewlyPlaced, AControlHasItsNameAndSavesLittleElse) {
    EXPECT_EQ(newlyPlaced(u"KelText"), R"(it "|" back 80000005 fore 80000008 caption 80000012 Sans Sans
it 0 0 4000 300 label 0 0 1200 195 field 1200 0 2800 300 spinner -
Caption = "it"
CaptionWidth = 1200)");
    EXPECT_EQ(newlyPlaced(u"KelNumber"), R"(it "|0" back 80000005 fore 80000008 caption 80000012 Sans Sans
it 0 0 4000 300 label 0 0 1200 195 field 1200 0 2800 300 spinner -
Caption = "it"
CaptionWidth = 1200
MaxValue = 9999999999
MinValue = -9999999999
Value = 0)");
    EXPECT_EQ(newlyPlaced(u"KelDate"), R"(it "|" back 80000005 fore 80000008 caption 8000000D Sans Sans
it 0 0 4000 300 label 0 0 1200 195 field 1200 0 2560 300 spinner 3760 0 240 300
Caption = "it"
CaptionWidth = 1200
Value = "")");
    EXPECT_EQ(newlyPlaced(u"KelTime"), R"(it "|" back 80000005 fore 80000008 caption 8000000D Sans Sans
it 0 0 4000 300 label 0 0 1200 195 field 1200 0 2560 300 spinner 3760 0 240 300
Caption = "it"
CaptionWidth = 1200
Value = "")");
    EXPECT_EQ(newlyPlaced(u"KelCombo"), R"(it "|" back 80000005 fore 80000008 caption 8000000D Sans Sans
it 0 0 4000 300 label 0 0 1200 195 field 1200 0 2800 300 spinner - list 187
Caption = "it"
CaptionWidth = 1200)");
    // Loaded without its value, the box would come back checked.
    EXPECT_EQ(newlyPlaced(u"KelCheck"), R"(it unchecked caption "it" fore 80000008 Sans
it 0 0 4000 300 check 0 30 4000 240
Caption = "it"
Value = False)");
    EXPECT_EQ(newlyPlaced(u"KelProgressBar"), R"(it bar 0 of 4000 text ""
it 0 0 4000 300)");
}

TEST(EnabledAndFontBold, AreOfCaptionAndField) {
    OneControl form(KelNumberModel);
    KelNumber& it = form.as<KelNumber>();
    it.entry().put_FontBold(true);
    it.entry().put_Enabled(false);
    for (const TextualWidget* part : std::initializer_list<TextualWidget*>{it.widgets().label, it.widgets().field}) {
        EXPECT_TRUE(part->fontBold());
        EXPECT_FALSE(part->enabled());
    }
}

TEST(PasswordField, HidesItsTextInSeveralLinesTooAndKeepsItsFont) {
    OneControl form(KelTextModel);
    KelText& it = form.as<KelText>();
    InitControls(form.home().settings(), form.home().system());
    it.Show();
    it.put_PasswordChar(u"*");
    it.put_MultiLine(true);
    EXPECT_EQ(dynamic_cast<TextBox&>(*it.widgets().entry).passwordChar(), U'*');
    EXPECT_EQ(it.widgets().field->font().name, it.widgets().label->font().name);
}

TEST(NumberField, TakesTheDecimalCommaOfItsRegion) {
    TestForm form({.region = findRegion(u"de-DE")});
    InitControls(form.home().settings(), form.home().system());
    auto& number = static_cast<KelNumber&>(form.place(u"a", KelNumberModel).control());
    press(form.window(), "Tab '1,5'");
    EXPECT_EQ(std::get<double>(number.get_Value()), 1.5);
}

TEST(Region, OfAFieldMayBecomeAnotherOne) {
    const RegionalSettings& german = *findRegion(u"de-DE");
    const RegionalSettings& english = *findRegion(u"en-GB");
    OneControl form(KelNumberModel);
    KelNumber& number = form.as<KelNumber>();
    number.put_MaxValue(9999);
    number.put_Decimals(2);
    const auto shown = [&] { return toUtf8(number.widgets().entry->text()); };
    // What a person is at is read as it was written.
    form.window().focus(form.placed());
    press(form.window(), "'2.5'");
    number.RegionChanged(german);
    EXPECT_EQ(shown(), "2,50");
    EXPECT_EQ(std::get<double>(number.get_Value()), 2.5);
    number.RegionChanged(english);
    EXPECT_EQ(shown(), "2.50");
}

TEST(Wheel, StepsAFieldOnceANotch) {
    const auto turn = [](OneControl& form, std::int32_t notches) {
        EntryField::of(form.placed().control()).put_UpDown(true);
        form.window().focus(form.placed());
        dynamic_cast<headless::HeadlessWindow&>(form.window()).turnWheel(form.placed(), notches);
    };
    OneControl form(KelNumberModel);
    for (const int notches : {2, 2, -1}) turn(form, notches);
    EXPECT_EQ(std::get<double>(form.as<KelNumber>().get_Value()), 3);

    OneControl dated(KelDateModel);
    DateTimeField& field = DateTimeField::of(dated.placed().control());
    field.put_Value(Date{41334});
    for (const int notches : {2, 2, -1}) turn(dated, notches);
    EXPECT_EQ(std::get<Date>(field.get_Value()).Serial, 41337);
}

}  // namespace
}  // namespace kel::test
