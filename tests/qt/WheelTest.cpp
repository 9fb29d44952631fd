#include <gtest/gtest.h>
#include <KelTextWidget.h>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "platform/qt/widgets/FieldView.h"
#include "tests/qt/ProbeForm.h"

namespace kel::test {
namespace {

constexpr int Notch = 120;

/// Returns whether it was used. Qt hands on what is not only when it comes from the window system.
bool turn(QWidget& area, const QPoint& angle) {
    const QPoint place = area.rect().center();
    QWheelEvent event(place, area.mapToGlobal(place), {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&area, &event);
    return event.isAccepted();
}

QWidget& areaOf(TextEntry& box) { return dynamic_cast<qt::FieldView&>(*box.view()).mouseArea(); }

TEST(Wheel, CountsWholeNotches) {
    for (const ClassModel* const model : {&ProbeControl::SingleLine, &ProbeControl::MultiLine}) {
        ProbeForm form;
        PlacedControl& field = form.place(u"a", *model);
        form.show();
        form.window().focus(field);
        ProbeControl::takeLog();
        for (const QPoint& angle : {QPoint(0, Notch), QPoint(0, -40), QPoint(0, -80), QPoint(Notch, 0)})
            turn(areaOf(probe(field).box()), angle);
        EXPECT_EQ(ProbeControl::takeLog(), "a.Wheel1 a.Wheel-1") << "in thirds too, and nothing sideways";
    }
}

TEST(Wheel, IsLeftAloneWithoutTheFocus) {
    ProbeForm form;
    PlacedControl& field = form.place(u"a");
    PlacedControl& other = form.place(u"b");
    form.show();
    form.window().focus(other);
    ProbeControl::takeLog();
    EXPECT_FALSE(turn(areaOf(probe(field).box()), {0, Notch}));
    EXPECT_EQ(ProbeControl::takeLog(), "");
}

TEST(Wheel, ScrollsWhatIsAround) {
    QScrollArea area;
    auto* const page = new QWidget;
    page->resize(300, 2000);
    auto* const line = new KelTextWidget(page);
    auto* const several = new KelTextWidget(page);
    several->setMultiLine(true);
    several->setText(QStringLiteral("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9"));
    line->setGeometry(0, 100, 200, 20);
    several->setGeometry(0, 200, 200, 60);
    area.setWidget(page);
    area.resize(400, 300);
    area.show();
    const QScrollBar& bar = *area.verticalScrollBar();
    turn(areaOf(*line->control().widgets().entry), {0, -Notch});
    EXPECT_GT(bar.value(), 0);
    const int before = bar.value();
    line->setFocus();
    turn(areaOf(*line->control().widgets().entry), {0, -Notch});
    EXPECT_GT(bar.value(), before) << "the focus makes no difference where the wheel means nothing";
    const int reached = bar.value();
    QWidget& lines = areaOf(*several->control().widgets().entry);
    turn(lines, {0, -Notch});
    EXPECT_EQ(bar.value(), reached) << "several lines scroll themselves";
    for (int i = 0; i < 10; ++i) turn(lines, {0, -Notch});
    EXPECT_GT(bar.value(), reached) << "as far as they go";
}

}  // namespace
}  // namespace kel::test
