#include <gtest/gtest.h>
#include <KelCheckWidget.h>
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QTest>

#include "controls/check/KelCheck.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/QtCheckBox.h"
#include "tests/qt/Pictures.h"
#include "tests/qt/ProbeForm.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

/// A text field and two check fields below it, the first of them, "b", the one that is worked.
class Check : public testing::Test {
protected:
    Check()
        : form(qt::makeHome({})),
          above(form.place(u"a")),
          checked(form.place(u"b", 300, KelCheckModel)),
          below(form.place(u"c", 300, KelCheckModel)) {
        check().put_Caption(u"&Agree");
        form.show();
        form.takeLog();
    }

    static KelCheck& checkOf(PlacedControl& placed) { return static_cast<KelCheck&>(placed.control()); }
    static qt::QtCheckBox& boxOf(PlacedControl& placed) {
        return dynamic_cast<qt::QtCheckBox&>(*placed.control().widgets().checkBox->view());
    }
    KelCheck& check() { return checkOf(checked); }
    qt::QtCheckBox& box() { return boxOf(checked); }
    QImage picture() { return box().grab().toImage(); }

    TextForm form;
    PlacedControl& above;
    PlacedControl& checked;
    PlacedControl& below;
};

TEST_F(Check, AllOfItTakesClicks) {
    const QPoint end(box().width() - 2, box().height() - 2);
    form.window().focus(above);
    pressMouse(box(), end);
    releaseMouse(box(), end);
    EXPECT_EQ(form.takeLog(), "b.Change() ");
    EXPECT_EQ(form.window().focused(), &checked);
}

TEST_F(Check, LockedItIsDrawnAsBeforeAndDisabledGrey) {
    for (const bool mandatory : {true, false}) {
        check().put_Mandatory(mandatory);
        const QImage free = picture();
        check().put_Locked(true);
        EXPECT_EQ(picture(), free);
        check().put_Enabled(false);
        const QImage grey = picture();
        EXPECT_NE(grey, free);
        check().put_Locked(false);
        EXPECT_EQ(picture(), grey);
        check().put_Enabled(true);
        EXPECT_EQ(picture(), free);
        box().window()->setEnabled(false);
        EXPECT_NE(picture(), free) << "with all around it";
        box().window()->setEnabled(true);
    }
}

TEST_F(Check, AHeldKeyOrButtonTogglesOnceWhenItIsLetGo) {
    form.window().focus(checked);
    const auto send = [this](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), repeated);
        QApplication::sendEvent(&box(), &event);
    };
    send(QEvent::KeyPress, false);
    send(QEvent::KeyRelease, true);
    send(QEvent::KeyPress, true);
    EXPECT_TRUE(box().isDown());
    EXPECT_EQ(form.takeLog(), "");
    send(QEvent::KeyRelease, false);
    EXPECT_EQ(form.takeLog(), "b.Change() ");

    send(QEvent::KeyPress, false);
    form.window().focus(below);
    form.window().focus(checked);
    send(QEvent::KeyRelease, false);
    EXPECT_EQ(form.takeLog(), "") << "the focus has been elsewhere";

    pressMouse(box(), {5, 5});
    EXPECT_TRUE(box().isDown());
    moveMouse(box(), {5, -20});
    releaseMouse(box(), {5, -20});
    EXPECT_EQ(form.takeLog(), "") << "let go beside it";
}

CheckBox& widgetOf(const KelCheckWidget& field) { return *field.control().widgets().checkBox; }
qt::QtCheckBox& boxOf(const KelCheckWidget& field) { return dynamic_cast<qt::QtCheckBox&>(*widgetOf(field).view()); }

TEST(CheckInQt, AnEventMayDestroyIt) {
    for (const bool byKey : {true, false}) {
        QWidget window;
        auto* field = new KelCheckWidget(&window);
        field->setGeometry(0, 0, 100, 20);
        QObject::connect(field, &KelCheckWidget::change, [&field] { delete std::exchange(field, nullptr); });
        window.show();
        if (byKey)
            QTest::keyClick(&boxOf(*field), Qt::Key_Space);
        else
            boxOf(*field).click();
        EXPECT_EQ(field, nullptr);
        letGo();
        EXPECT_TRUE(window.children().isEmpty());
    }
}

TEST(CheckInQt, ItIsReadOutAndWorkedByAScreenReader) {
    QWidget window;
    KelCheckWidget field(&window);
    int changes = 0;
    QObject::connect(&field, &KelCheckWidget::change, [&changes] { ++changes; });
    field.setCaption(QStringLiteral("Black && &white"));
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&boxOf(field));
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Black & white"));
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(field.value());
    EXPECT_TRUE(spoken->state().checked);
    widgetOf(field).setValue(CheckBox::Grey);
    EXPECT_TRUE(spoken->state().checkStateMixed);
    EXPECT_EQ(widgetOf(field).value(), CheckBox::Grey);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widgetOf(field).value(), CheckBox::Unchecked);
    EXPECT_EQ(changes, 3);
    // By somebody who found Qt's own widget.
    boxOf(field).setChecked(true);
    EXPECT_TRUE(field.value());
    EXPECT_EQ(changes, 4);
}

TEST(CheckInQt, ALayoutLeavesRoomForTheCaption) {
    QWidget window;
    KelCheckWidget field(&window);
    field.setCaption(QStringLiteral("A caption that is longer than what most of them are"));
    for (const bool bold : {false, true}) {
        field.setFontBold(bold);
        const int wanted = boxOf(field).fontMetrics().horizontalAdvance(boxOf(field).text());
        EXPECT_GT(field.minimumSizeHint().width(), wanted);
        EXPECT_EQ(field.sizeHint(), QSize(field.minimumSizeHint().width(), QLineEdit().sizeHint().height()));
    }
}

TEST(CheckInQt, FromRightToLeftTheBoxStandsAtTheRight) {
    QWidget window;
    KelCheckWidget field(&window);
    field.setGeometry(0, 0, 200, 20);
    window.show();
    const auto inkAt = [&field](int left, int right) {
        const QImage picture = field.grab().toImage();
        return !inkIn(picture, {left, 0, right - left, picture.height()}, picture.pixelColor(100, 0)).isEmpty();
    };
    EXPECT_TRUE(inkAt(0, 20));
    EXPECT_FALSE(inkAt(180, 200));
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_FALSE(inkAt(0, 20));
    EXPECT_TRUE(inkAt(180, 200));
}

}  // namespace
}  // namespace kel::test
