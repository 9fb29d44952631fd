#include "controls/check/KelCheck.h"

#include <gtest/gtest.h>

#include "forms/play/ControlInWords.h"
#include "tests/check/OneControl.h"

namespace kel::test {
namespace {

class Check : public testing::Test {
protected:
    OneControl Form{KelCheckModel};
    KelCheck& It = Form.as<KelCheck>();
    CheckBox& Box = *It.widgets().checkBox;

    std::u16string look() { return describeLook(u"it", It); }
};

TEST_F(Check, GreyIsNotTrueAndAClickUnchecksIt) {
    Box.setValue(CheckBox::Grey);
    EXPECT_EQ(Form.told(), Lines{"Change!"}) << "the box was set by code, but not by the control's";
    EXPECT_EQ(look(), u"it grey caption \"\" fore 80000008");
    EXPECT_FALSE(It.get_Value());
    Form.window().click(Form.placed(), 0);
    EXPECT_EQ(look(), u"it unchecked caption \"\" fore 80000008");
    EXPECT_EQ(Form.told(), Lines{"Change!"});
    Box.setValue(CheckBox::Grey);
    Form.told();
    It.put_Value(false);
    EXPECT_EQ(Box.value(), CheckBox::Unchecked);
    EXPECT_EQ(Form.told(), Lines{"Value"});
}

TEST_F(Check, AnEventThatDisablesTheBoxEndsTheUsersTurn) {
    Form.onEvent = [this] { It.put_Locked(true); };
    Form.window().focus(Form.placed());
    for (int presses = 0; presses < 2; ++presses) Form.window().press(strokeFor(U' '));
    EXPECT_TRUE(It.get_Value());
    EXPECT_EQ(Form.told(), (Lines{"Change!", "Locked"}));
    EXPECT_TRUE(Box.enabled()) << "a locked box is drawn as it was";
    It.put_Enabled(false);
    EXPECT_FALSE(Box.enabled());
}

}  // namespace
}  // namespace kel::test
