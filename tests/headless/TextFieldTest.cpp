#include <gtest/gtest.h>

#include "controls/text/KelText.h"
#include "host/PropertyBag.h"
#include "tests/headless/Keys.h"
#include "tests/headless/TestForm.h"

namespace kel::test {
namespace {

/// Hands out every default.
class EmptyBag final : public PropertyBag {
public:
    Variant readProperty(const PersistedRow& row) override { return toVariant(row.readDefault); }
    void writeProperty(const PersistedRow&, const Variant&) override {}
};

class TextField : public testing::Test {
protected:
    KelText& load(std::u16string name) {
        PlacedControl& placed = Form.place(std::move(name), KelTextModel);
        EmptyBag bag;
        placed.control().ReadProperties(bag);
        placed.setBounds({0, 0, 4000, 300});
        return static_cast<KelText&>(placed.control());
    }
    std::string looks(KelText& field) { return drawn(*field.widgets().entry); }

    TestForm Form;
    FormWindow& Window = Form.window();
    KelText& A = load(u"a");
    KelText& B = load(u"b");
};

TEST_F(TextField, EnterMovesOnAsTabDoes) {
    B.entry().put_SelectOnFocus(true);
    B.put_Text(u"second");
    Window.show();
    press(Window, "Tab 'x' Enter");
    EXPECT_EQ(Form.focused(), "b");
    EXPECT_EQ(looks(A), "|x");
    EXPECT_EQ(looks(B), "[second]");
}

TEST(UnloadedFields, HaveARuntimeObjectToMoveOnAndATooltipOfTheirOwn) {
    TestForm form;
    auto& first = static_cast<KelText&>(form.place(u"first", KelTextModel).control());
    form.place(u"second", KelTextModel);
    first.widgets().field->setToolTip(u"own");
    form.window().show();
    ASSERT_EQ(form.home().settings().Runtime, nullptr);
    EXPECT_EQ(first.widgets().field->toolTip(), u"own") << "the host gives none";
    press(form.window(), "Tab Enter");
    EXPECT_EQ(form.focused(), "second");
}

TEST_F(TextField, OverwritingReplacesOneCharacterAStep) {
    A.entry().put_InsertMode(false);
    A.put_Text(u"abc");
    press(Window, "Tab 'xy'");
    EXPECT_EQ(looks(A), "xy|c");
    press(Window, "Ctrl+Z");
    EXPECT_EQ(A.get_Text(), u"xbc");
    press(Window, "End 'de' Ctrl+Z");
    EXPECT_EQ(looks(A), "xbc|") << "behind the text it is plain typing";
}

}  // namespace
}  // namespace kel::test
