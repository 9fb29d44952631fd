#include <gtest/gtest.h>
#include <KelTextWidget.h>
#include <functional>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>

#include "library/Control.h"
#include "platform/qt/home/KeySender.h"
#include "platform/qt/home/QtHome.h"
#include "tests/qt/ProbeForm.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Plain Qt: two of our fields with widgets of Qt's own between and behind them.
class MixedWindow : public testing::Test {
protected:
    MixedWindow() {
        auto* const layout = new QVBoxLayout(&window);
        for (QWidget* const widget : {static_cast<QWidget*>(&first), static_cast<QWidget*>(&between),
                                      static_cast<QWidget*>(&second), static_cast<QWidget*>(&behind)})
            layout->addWidget(widget);
        window.show();
        window.activateWindow();
        settle();
    }
    ~MixedWindow() override {
        for (QWidget* const widget : {static_cast<QWidget*>(&first), static_cast<QWidget*>(&between),
                                      static_cast<QWidget*>(&second), static_cast<QWidget*>(&behind)})
            widget->setParent(nullptr);
    }

    static QWidget* boxOf(KelTextWidget& field) { return &widgetOf(*field.control().widgets().entry); }
    static bool hasFocusColor(KelTextWidget& field) {
        return field.control().widgets().field->backColor() == qt::defaultHome().settings().FieldBackFocus;
    }
    static void tab(Modifiers modifiers = NoModifier) {
        qt::strikeKey({keys::Tab, 0, modifiers});
        settle();
    }

    QWidget window;
    KelTextWidget first;
    QLineEdit between;
    KelTextWidget second;
    QLineEdit behind;
};

TEST_F(MixedWindow, TabGoesThroughComposites) {
    first.setFocus();
    std::vector<QWidget*> way;
    for (int i = 0; i < 4; ++i) {
        way.push_back(QApplication::focusWidget());
        tab();
    }
    EXPECT_EQ(way, (std::vector<QWidget*>{boxOf(first), &between, boxOf(second), &behind}));
    EXPECT_EQ(QApplication::focusWidget(), boxOf(first)) << "around";

    QWidget::setTabOrder(&second, &first);
    QWidget::setTabOrder(&first, &behind);
    second.setFocus();
    tab();
    EXPECT_EQ(QApplication::focusWidget(), boxOf(first));
    tab(ShiftKey);
    EXPECT_EQ(QApplication::focusWidget(), boxOf(second));
}

TEST_F(MixedWindow, SeveralLinesKeepTheirPlaceInTheTabOrder) {
    for (const bool multiLine : {true, false, true}) {
        first.setMultiLine(multiLine);
        second.setMultiLine(multiLine);
        behind.setFocus();
        tab();
        EXPECT_EQ(QApplication::focusWidget(), boxOf(first));
        tab();
        tab();
        EXPECT_EQ(QApplication::focusWidget(), boxOf(second));
        EXPECT_TRUE(second.hasFocus()) << "the composite stands for its box";
    }
}

TEST_F(MixedWindow, PopupsAndOtherWindowsAreNoChange) {
    first.setSelectOnFocus(true);
    first.setText(QStringLiteral("text"));
    behind.setFocus();
    tab();
    ASSERT_TRUE(hasFocusColor(first));
    TextEntry& box = *first.control().widgets().entry;
    box.setSelStart(1);
    box.setSelLength(2);

    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup({});
    settle();
    EXPECT_TRUE(hasFocusColor(first)) << "a menu is open";
    menu.close();
    QWidget other;
    other.show();
    other.activateWindow();
    settle();
    ASSERT_FALSE(window.isActiveWindow());
    EXPECT_TRUE(hasFocusColor(first)) << "another window is in front";
    other.close();
    window.activateWindow();
    settle();
    EXPECT_TRUE(hasFocusColor(first));
    EXPECT_EQ(drawn(box), "t[ex]t") << "coming back is no entering";
}

TEST_F(MixedWindow, AFocusThatMovedWhileTheWindowWasAwayHasLeft) {
    first.setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    settle();
    between.setFocus();
    EXPECT_TRUE(hasFocusColor(first));
    window.activateWindow();
    settle();
    EXPECT_FALSE(hasFocusColor(first));
}

TEST_F(MixedWindow, GoesOnFromWhatIsDisabledOrHidden) {
    QWidget group(&window);
    KelTextWidget inside(&group);
    KelTextWidget beside(&group);
    window.layout()->addWidget(&group);
    settle();
    const auto selected = [this] { return second.control().widgets().entry->selLength(); };
    second.setText(QStringLiteral("text"));
    second.setSelectOnFocus(true);
    between.setFocusPolicy(Qt::ClickFocus);
    struct Case {
        const char* what;
        KelTextWidget& field;
        QWidget& barred;
        QWidget* next;
    };
    const Case cases[] = {
        {"itself", first, first, boxOf(second)},
        {"its group", inside, group, boxOf(first)},
    };
    for (const Case& row : cases) {
        const std::pair<const char*, std::function<void(bool)>> bars[] = {
            {"disabled", [&row](bool bar) { row.barred.setDisabled(bar); }},
            {"hidden", [&row](bool bar) { row.barred.setHidden(bar); }},
        };
        for (const auto& [how, bar] : bars) {
            row.field.setFocus();
            ASSERT_TRUE(hasFocusColor(row.field));
            bar(true);
            settle();
            EXPECT_EQ(QApplication::focusWidget(), row.next) << row.what << ' ' << how;
            EXPECT_FALSE(hasFocusColor(row.field)) << row.what << ' ' << how;
            second.control().widgets().entry->setSelLength(2);
            row.field.setFocus();
            row.field.control().widgets().field->setFocus();
            settle();
            EXPECT_EQ(QApplication::focusWidget(), row.next) << "by code neither: " << row.what << ' ' << how;
            EXPECT_EQ(selected(), 2) << "nobody hears of it: " << row.what << ' ' << how;
            bar(false);
        }
    }
    first.setFocus();
    first.setEnabled(false);
    EXPECT_EQ(selected(), 4) << "as by Tab";

    for (const bool multiLine : {true, false}) {
        second.setFocus();
        second.setMultiLine(multiLine);
        EXPECT_EQ(QApplication::focusWidget(), boxOf(second)) << "its other box takes over";
        EXPECT_TRUE(hasFocusColor(second));
    }
    behind.setEnabled(false);
    group.setEnabled(false);
    second.setEnabled(false);
    EXPECT_EQ(QApplication::focusWidget(), nullptr) << "nothing else takes it";
}

TEST_F(MixedWindow, AMnemonicThatIsNoLongerMarkedIsNone) {
    first.setCaption(QStringLiteral("&Name"));
    first.setCaption(QStringLiteral("Na&me"));
    behind.setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &behind);

    QLabel label(QStringLiteral("&Buddy"), &window);
    label.setBuddy(&second);
    label.show();
    QTest::keyClick(window.windowHandle(), Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), boxOf(second));
}

/// What is told of a Tab from the first of three fields while a handler does `does` to the last or the middle one.
template <class Form>
std::string toldOfTab(const char* told, void (*does)(ProbeControl& middle, ProbeControl& last)) {
    Form form;
    PlacedControl& first = form.place(u"a");
    ProbeControl& middle = probe(form.place(u"b"));
    ProbeControl& last = probe(form.place(u"c"));
    form.window().show();
    form.window().focus(first);
    ProbeControl::takeLog();
    bool isDone = false;
    for (ProbeControl* const each : {&probe(first), &middle})
        each->on(told, [&] {
            if (!std::exchange(isDone, true)) does(middle, last);
        });
    form.window().press({keys::Tab});
    return ProbeControl::takeLog() + ", focus in " + form.focused();
}

TEST(FocusOrder, IsToldAsInMemoryWhenAHandlerMovesIt) {
    using Deed = void (*)(ProbeControl&, ProbeControl&);
    const Deed deeds[] = {
        [](ProbeControl&, ProbeControl& last) { last.box().setFocus(); },
        [](ProbeControl& middle, ProbeControl&) { middle.box().setFocus(); },
        [](ProbeControl& middle, ProbeControl&) { middle.box().setEnabled(false); },
        [](ProbeControl& middle, ProbeControl&) { middle.box().setVisible(false); },
        [](ProbeControl& middle, ProbeControl&) { middle.host().container.setEnabled(false); },
        [](ProbeControl& middle, ProbeControl& last) {
            last.box().setFocus();
            middle.box().setFocus();
        },
    };
    for (const char* const told : {"LostFocus", "ExitFocus", "EnterFocus", "GotFocusByTab"})
        for (std::size_t deed = 0; deed < std::size(deeds); ++deed)
            EXPECT_EQ(toldOfTab<ProbeForm>(told, deeds[deed]), toldOfTab<TestForm>(told, deeds[deed]))
                << "deed " << deed << " in " << told;
}

}  // namespace
}  // namespace kel::test
