#include <gtest/gtest.h>
#include <KelTextWidget.h>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/qt/ProbeForm.h"

namespace kel::test {
namespace {

constexpr int Notch = 120;

TEST(Wheel, CountsWholeNotches) {
    for (const ClassModel* const model : {&ProbeControl::SingleLine, &ProbeControl::MultiLine}) {
        ProbeForm form;
        PlacedControl& field = form.place(u"a", *model);
        form.show();
        form.window().focus(field);
        ProbeControl::takeLog();
        for (const QPoint& angle : {QPoint(0, Notch), QPoint(0, -40), QPoint(0, -80), QPoint(Notch, 0)})
            turnWheel(areaOf(probe(field).box()), angle);
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
    EXPECT_FALSE(turnWheel(areaOf(probe(field).box()), {0, Notch}));
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
    turnWheel(areaOf(*line->control().widgets().entry), {0, -Notch});
    EXPECT_GT(bar.value(), 0);
    const int before = bar.value();
    line->setFocus();
    turnWheel(areaOf(*line->control().widgets().entry), {0, -Notch});
    EXPECT_GT(bar.value(), before) << "the focus makes no difference where the wheel means nothing";
    const int reached = bar.value();
    QWidget& lines = areaOf(*several->control().widgets().entry);
    turnWheel(lines, {0, -Notch});
    EXPECT_EQ(bar.value(), reached) << "several lines scroll themselves";
    for (int i = 0; i < 10; ++i) turnWheel(lines, {0, -Notch});
    EXPECT_GT(bar.value(), reached) << "as far as they go";
}

}  // namespace
}  // namespace kel::test
