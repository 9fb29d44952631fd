#include <gtest/gtest.h>
#include <KelComboWidget.h>
#include <KelNumberWidget.h>
#include <KelTextWidget.h>
#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include "controls/text/KelText.h"
#include "library/Dispatch.h"
#include "platform/qt/base/VariantBridge.h"
#include "platform/qt/home/QtHome.h"
#include "tests/qt/QtForm.h"

/// A field as a program on Qt, a layout or a designer sees it.
namespace kel::test {
namespace {

QWidget& boxOf(KelTextWidget& field) { return widgetOf(*field.control().widgets().entry); }

QString spoken(QWidget& widget, QAccessible::Text part) {
    return QAccessible::queryAccessibleInterface(&widget)->text(part);
}

TEST(Properties, WriteAndReadTheControl) {
    KelTextWidget field;
    const std::pair<const char*, QVariant> values[] = {
        {"caption", QStringLiteral("&Caption")},
        {"captionWidth", 1500},
        {"enabled", false},
        {"passwordChar", QStringLiteral("*")},
        {"text", QStringLiteral("some text")},
    };
    for (const auto& [name, value] : values) {
        EXPECT_NE(field.property(name), value) << name;
        EXPECT_TRUE(field.setProperty(name, value));
        EXPECT_EQ(field.property(name), value) << name;
    }
    const auto& control = static_cast<KelText&>(field.control());
    EXPECT_EQ(EntryField::of(control).get_Caption(), u"&Caption");
    EXPECT_EQ(EntryField::of(control).get_CaptionWidth(), 1500);

    field.setMaxLength(70000);
    EXPECT_EQ(field.maxLength(), 32767) << "the nearest that fits";
    field.setCaptionWidth(-5);
    EXPECT_EQ(field.captionWidth(), 1500) << "ignored";
}

TEST(Properties, ValuesComeBackFromQt) {
    const Variant values[] = {
        Null{},
        true,
        std::int32_t{-7},
        2.5,
        Date{41348.5},
        Date{0.75},
        Date{-1.25},
        Date{-657434},
        std::u16string(u"\U0001F600"),
        StringArray{u"a", u""},
    };
    for (const Variant& value : values) EXPECT_EQ(qt::fromQVariant(qt::toQVariant(value)), value) << value.index();
    EXPECT_EQ(qt::toQVariant(Date{41348.5}), QVariant(QDateTime(QDate(2013, 3, 15), QTime(12, 0))));
    EXPECT_EQ(qt::fromQVariant(QDate(2013, 3, 15)), Variant(Date{41348}));
    EXPECT_EQ(qt::fromQVariant(QTime(18, 0)), Variant(Date{0.75}));
    EXPECT_EQ(qt::fromShort(-40000), Variant(std::int16_t{-32768}));
}

TEST(Properties, SignalsFollowTheControl) {
    KelTextWidget field;
    const QSignalSpy changes(&field, &KelTextWidget::change);
    field.setText(QStringLiteral("a"));
    field.setText(QStringLiteral("a"));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(field.changed());
    EXPECT_TRUE(field.changedSaved());
}

TEST(Widget, IsEnabledFromEitherSide) {
    QWidget parent;
    auto* const field = new KelTextWidget(&parent);
    QWidget* const plain = field;
    const Color locked = qt::defaultHome().settings().FieldBackLocked;

    plain->setEnabled(false);
    EXPECT_FALSE(field->enabled());
    EXPECT_EQ(field->control().widgets().field->backColor(), locked);
    field->setEnabled(true);
    EXPECT_TRUE(plain->isEnabled());
    EXPECT_TRUE(boxOf(*field).isEnabled());

    parent.setEnabled(false);
    EXPECT_TRUE(field->enabled()) << "the parent's state is not the control's";
    plain->setEnabled(false);
    parent.setEnabled(true);
    parent.show();
    EXPECT_FALSE(field->enabled());
    EXPECT_EQ(field->control().widgets().field->backColor(), locked) << "told late, but told";
    QWidget group;
    KelComboWidget combo(&group);
    QWidget* const around[] = {&group, &combo};
    for (QWidget* const widget : around) {
        widget->setEnabled(false);
        widget->setEnabled(true);
        EXPECT_TRUE(combo.control().widgets().field->enabled()) << "and back, where its box alone is enabled";
        EXPECT_TRUE(widgetOf(*combo.control().widgets().entry).isEnabled());
    }
}

TEST(Widget, SpeaksItsCaptionAndTooltip) {
    KelTextWidget field;
    field.setCaption(QStringLiteral("&Name && more"));
    EXPECT_EQ(spoken(field, QAccessible::Name), QStringLiteral("Name & more"));
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Name), QStringLiteral("Name & more"));
    field.setMultiLine(true);
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Name), QStringLiteral("Name & more")) << "the other box";
    field.setCaption(QStringLiteral("Town"));
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Name), QStringLiteral("Town"));
    boxOf(field).setAccessibleName(QStringLiteral("Home town"));
    field.setCaption(QStringLiteral("City"));
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Name), QStringLiteral("Home town")) << "the program's own stays";

    field.setToolTip(QStringLiteral("Where you live"));
    field.show();
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Description), QStringLiteral("Where you live, required, not valid"));
    field.setMandatory(false);
    field.setText(QStringLiteral("x"));
    EXPECT_EQ(boxOf(field).toolTip(), QStringLiteral("Where you live"));
    EXPECT_EQ(spoken(boxOf(field), QAccessible::Description), QStringLiteral("Where you live"));
    field.setToolTip(QStringLiteral("Elsewhere"));
    EXPECT_EQ(boxOf(field).toolTip(), QStringLiteral("Elsewhere"));
    field.tooltipSet(QStringLiteral("By the control"));
    EXPECT_EQ(field.toolTip(), QStringLiteral("By the control"));
}

TEST(Widget, LivesInALayout) {
    QWidget window;
    QHBoxLayout layout(&window);
    auto* const field = new KelTextWidget;
    layout.addWidget(field);
    window.resize(400, 200);
    window.show();
    EXPECT_EQ(field->height(), QLineEdit().sizeHint().height());
    EXPECT_EQ(field->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    EXPECT_EQ(boxOf(*field).geometry(), field->rect());

    const int before = field->sizeHint().width();
    field->setCaptionWidth(2400);
    EXPECT_EQ(field->sizeHint().width(), before + 160);
    EXPECT_EQ(boxOf(*field).x(), 160);

    field->setMultiLine(true);
    QCoreApplication::processEvents();
    EXPECT_GT(field->height(), 100) << "several lines take the height there is";
    EXPECT_EQ(boxOf(*field).height(), field->height());
}

TEST(Widget, AsksForRoomForItsSpinner) {
    KelNumberWidget field;
    field.show();
    const int before = field.sizeHint().width();
    field.setUpDown(true);
    EXPECT_EQ(field.sizeHint().width(), before + 16);
}

TEST(Widget, KnowsTheRegionFromTheFirstOneOn) {
    KelNumberWidget field;
    field.setValue(0.25);
    EXPECT_EQ(field.value(), 0.25);
}

TEST(Widget, TakesItsOwnHeight) {
    QWidget window;
    auto* const field = new KelTextWidget(&window);
    field->setGeometry(0, 0, 200, 10);
    window.show();
    EXPECT_EQ(field->height(), QLineEdit().sizeHint().height());
    field->resize(200, 55);
    EXPECT_EQ(boxOf(*field).height(), 55);
    field->setCaptionWidth(1200);
    field->resize(40, 20);
    EXPECT_EQ(field->captionWidth(), 600) << "no wider than the control";
}

TEST(Widget, MayGoInASlotOfItsOwn) {
    QPointer<KelTextWidget> field = new KelTextWidget;
    field->show();
    field->activateWindow();
    QCoreApplication::processEvents();
    field->setFocus();
    QObject::connect(field, &KelTextWidget::change, field, [&field] { field->deleteLater(); });
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QApplication::sendEvent(&boxOf(*field), &key);
    EXPECT_EQ(field->text(), QStringLiteral("x"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(field.isNull());
}

}  // namespace
}  // namespace kel::test
