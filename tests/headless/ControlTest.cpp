#include <gtest/gtest.h>

#include "controls/Classes.h"
#include "controls/number/KelNumber.h"
#include "forms/Looks.h"
#include "forms/ScriptValue.h"
#include "tests/check/OneControl.h"
#include "values/Text.h"

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

}  // namespace
}  // namespace kel::test
