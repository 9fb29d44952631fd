#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "controls/combo/KelCombo.h"
#include "library/SharedSettings.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/ComboList.h"
#include "tests/qt/ProbeForm.h"
#include "tests/qt/QtForm.h"

/// A combo field on the screen: what its list does for hands, keys and eyes.
namespace kel::test {
namespace {

constexpr Rect First{120, 75, 4500, 300};
constexpr Rect Second{120, 450, 4500, 300};
constexpr char16_t Fruits[] = u"Apple,Apricot,Banana,Cherry,Damson,Elder,Fig,Grape,Hazel,Iris";

class Combo : public testing::Test {
protected:
    Combo() : form(qt::makeHome({})), first(&place(u"a", First)), second(&place(u"b", Second)) {
        form.show();
        form.takeLog();
    }

    PlacedControl& place(const std::u16string& name, const Rect& bounds) {
        PlacedControl& placed = form.placeAt({.name = name, .bounds = bounds}, KelComboModel);
        comboOf(placed).put_List(Fruits);
        return placed;
    }

    static KelCombo& comboOf(PlacedControl& placed) { return static_cast<KelCombo&>(placed.control()); }
    static qt::QtComboBox& boxOf(PlacedControl& placed) {
        return dynamic_cast<qt::QtComboBox&>(*placed.control().widgets().field->view());
    }
    KelCombo& combo() { return comboOf(*first); }
    qt::QtComboBox& box() { return boxOf(*first); }
    TextEntry& text() { return box().box(); }
    qt::ComboList& list() { return *box().list(); }
    bool isOpen() { return box().list() != nullptr && list().isVisible(); }
    QPoint middleOf(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }

    FormWindow& window() { return form.window(); }
    SharedSettings& settings() { return form.home().settings(); }
    void key(std::int16_t code, Modifiers modifiers = NoModifier) { window().press({code, 0, modifiers}); }
    void open() {
        window().focus(*first);
        key(keys::F4);
        ASSERT_TRUE(isOpen());
    }

    TextForm form;
    PlacedControl* first;
    PlacedControl* second;
};

// ---- Hands and keys

TEST_F(Combo, WhatAReadersToolWritesIsTyping) {
    window().focus(*first);
    form.takeLog();
    QAccessible::queryAccessibleInterface(&box())->setText(QAccessible::Value, QStringLiteral("Iris"));
    EXPECT_EQ(drawn(text()), "Iris|");
    EXPECT_EQ(form.takeLog(), "a.ChangeEx(Iris) a.Change(Iris) ");
}

TEST_F(Combo, TheListIsNoChangeOfFocus) {
    open();
    const Color focused = settings().FieldBackFocus;
    EXPECT_EQ(text().backColor(), focused);
    EXPECT_EQ(window().focused(), first);
    EXPECT_TRUE(box().hasFocus());
    key(keys::Escape);
    EXPECT_EQ(text().backColor(), focused);
}

TEST_F(Combo, ClosesWhenItIsBarredOrGone) {
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"disabled", [this] { combo().entry().put_Enabled(false); }},
        {"hidden", [this] { box().setVisible(false); }},
        {"another list", [this] { combo().put_List(u"x"); }},
        {"another field", [this] { window().focus(*second); }},
        {"a click into another field", [this] { window().click(*second, 0); }},
    };
    for (const auto& [what, end] : ends) {
        combo().entry().put_Enabled(true);
        box().setVisible(true);
        open();
        end();
        EXPECT_FALSE(isOpen()) << what;
        EXPECT_FALSE(first->control().widgets().comboBox->isDropped()) << what;
    }
    box().parentWidget()->hide();
    first->control().widgets().comboBox->showDropDown(true);
    EXPECT_FALSE(isOpen()) << "where nobody sees the field";
    box().parentWidget()->show();
    open();
    form.unload();
    letGo();
}

TEST_F(Combo, ThePickedItemMayEndTheForm) {
    form.onEvent = [this](PlacedControl&, const EventRow& event) {
        if (event.name == u"Click") form.unload();
    };
    window().focus(*first);
    first->control().widgets().comboBox->showDropDown(true);
    const QPoint row = middleOf(1);
    moveMouse(*list().viewport(), row);
    pressMouse(*list().viewport(), row);
    releaseMouse(*list().viewport(), row);
    letGo();
    EXPECT_EQ(form.takeLog(), "a.ChangeEx(Apricot) a.Click(Apricot) ");
}

// ---- Mouse

TEST_F(Combo, TheButtonOpensAndCloses) {
    const QPoint middle = box().button().center();
    pressMouse(box(), middle);
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(box().hasFocus());
    releaseMouse(box(), middle);
    EXPECT_TRUE(isOpen()) << "the release of the same press is no choice";
    pressMouse(box(), middle);
    releaseMouse(box(), middle);
    EXPECT_FALSE(isOpen()) << "the press that closes does not open again";
    pressMouse(box(), middle);
    EXPECT_TRUE(isOpen());
    releaseMouse(box(), middle);
    pressMouse(box(), {4, 10});
    EXPECT_FALSE(isOpen()) << "a press elsewhere";
    releaseMouse(box(), {4, 10});
    EXPECT_EQ(form.takeLog(), "");
}

TEST_F(Combo, RowsFollowThePointer) {
    combo().put_Text(u"Banana");
    open();
    EXPECT_EQ(list().currentIndex().row(), 2);
    moveMouse(*list().viewport(), middleOf(5));
    EXPECT_EQ(list().currentIndex().row(), 5);
    EXPECT_EQ(drawn(text()), "|Banana") << "nothing is picked yet";
    pressMouse(*list().viewport(), middleOf(3));
    releaseMouse(*list().viewport(), middleOf(3));
    EXPECT_EQ(drawn(text()), "|Cherry");
    EXPECT_FALSE(isOpen());
}

TEST_F(Combo, TheWheelIsTheFormsAndScrollsTheOpenList) {
    combo().put_Text(u"Cherry");
    window().focus(*first);
    EXPECT_FALSE(turnWheel(box(), {0, -120}));
    EXPECT_EQ(combo().get_Text(), u"Cherry");
    open();
    turnWheel(*list().viewport(), {0, -120});
    EXPECT_GT(list().verticalScrollBar()->value(), 0);
    EXPECT_EQ(combo().get_Text(), u"Cherry");
}

// ---- Looks

TEST_F(Combo, TheListStandsAtTheBox) {
    const auto boxOnScreen = [this] { return QRect(box().mapToGlobal(QPoint()), box().size()); };
    QWidget& top = *box().window();
    open();
    EXPECT_EQ(list().geometry().topLeft(), boxOnScreen().bottomLeft() + QPoint(0, 1));
    EXPECT_EQ(list().width(), box().width());
    EXPECT_EQ(list().indexAt({5, list().viewport()->height() - 1}).row(), 7) << "eight whole rows";
    key(keys::Escape);

    combo().put_List(u"Apple,Fig");
    open();
    combo().put_DropDownWidth(6000);
    EXPECT_EQ(list().width(), 400) << "while it is open";
    key(keys::Escape);
    top.setLayoutDirection(Qt::RightToLeft);
    top.move(300, 100);
    open();
    EXPECT_EQ(list().width(), 400);
    EXPECT_EQ(list().geometry().right(), boxOnScreen().right());
    EXPECT_LT(list().height(), 4 * box().height()) << "no longer than its items";
    key(keys::Escape);

    top.move(0, top.screen()->availableGeometry().bottom() - 40);
    open();
    EXPECT_EQ(list().geometry().bottom(), boxOnScreen().top() - 1) << "no room below";
}

/// How far two pictures are from each other at most, of 255.
int differenceBetween(const QImage& one, const QImage& other) {
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    return most;
}

/// Whatever the classic frame, whose width the settings have.
TEST_F(Combo, ItsEdgeIsThatOfATextField) {
    ASSERT_EQ(settings().ButtonWidthPixels, 16);
    PlacedControl& beside = form.placeAt({.name = u"c", .bounds = {120, 900, 4500, 300}});
    form.show();
    for (const bool mirrored : {false, true}) {
        box().window()->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        const QImage combo = box().grab().toImage();
        // All but the end where the button is.
        const QRect part(mirrored ? 30 : 0, 0, combo.width() - 30, combo.height());
        const QImage field = widgetOf(test::boxOf(beside)).grab().toImage();
        EXPECT_LT(differenceBetween(combo.copy(part), field.copy(part)), 8) << mirrored;
        EXPECT_GT(differenceBetween(field.copy(part), QImage(part.size(), QImage::Format_RGB32)), 80);
    }
}

}  // namespace
}  // namespace kel::test
