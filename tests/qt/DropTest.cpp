#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/qt/home/QtHome.h"
#include "tests/qt/ProbeForm.h"
#include "tests/qt/QtForm.h"

/// Text that comes by the mouse.
namespace kel::test {
namespace {

constexpr Qt::DropActions AnyAction = Qt::CopyAction | Qt::MoveAction;

QPoint startOf(const QWidget& area) { return {4, area.height() / 2}; }
QPoint endOf(const QWidget& area) { return {area.width() - 3, area.height() / 2}; }

/// Somebody else's text on its way over a box.
class Dragged {
public:
    Dragged(QWidget& area, const QString& text) : Area_(area) { Data_.setText(text); }

    void enter(const QPoint& place) {
        QDragEnterEvent event(place, AnyAction, &Data_, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Area_, &event);
    }
    void move(const QPoint& place) {
        QDragMoveEvent event(place, AnyAction, &Data_, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Area_, &event);
    }
    void leave() {
        QDragLeaveEvent event;
        QApplication::sendEvent(&Area_, &event);
    }
    /// What the box says it did; its source removes the text after a move.
    Qt::DropAction drop(const QPoint& place) {
        QDropEvent event(place, AnyAction, &Data_, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(&Area_, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

private:
    QWidget& Area_;
    QMimeData Data_;
};

Qt::DropAction dropText(TextEntry& box, const QString& text) {
    QWidget& area = areaOf(box);
    Dragged dragged(area, text);
    dragged.enter(endOf(area));
    return dragged.drop(endOf(area));
}

/// Text is dropped on the second field while the first one has the focus.
class DropOn : public testing::TestWithParam<const ClassModel*> {
protected:
    DropOn() : first(form.place(u"a")), second(form.place(u"b", *GetParam())) {
        form.show();
        form.window().focus(first);
        put(box(), "ab[cd]ef");
        ProbeControl::takeLog();
    }

    TextEntry& box() { return boxOf(second); }

    ProbeForm form;
    PlacedControl& first;
    PlacedControl& second;
};

constexpr const char* FocusGoesOver = "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus";

TEST_P(DropOn, GivesTheFocusFirst) {
    probe(second).on("GotFocus", [this] { box().setText(u"as it is edited"); });
    EXPECT_EQ(dropText(box(), QStringLiteral("x")), Qt::CopyAction) << "a move would empty the other field";
    EXPECT_EQ(ProbeControl::takeLog(), std::string(FocusGoesOver) + " b.Change b.Paste b.Change");
    EXPECT_EQ(drawn(box()), "as it is editedx|");
}

TEST_P(DropOn, GivesTheFocusInAWindowBehindToo) {
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    ASSERT_FALSE(boxWidgetOf(second).isActiveWindow());
    ProbeControl::takeLog();
    dropText(box(), QStringLiteral("x"));
    EXPECT_EQ(ProbeControl::takeLog(), std::string(FocusGoesOver) + " b.Paste b.Change");
    QCoreApplication::processEvents();
    EXPECT_EQ(form.focused(), "b");
    EXPECT_EQ(ProbeControl::takeLog(), "") << "told once";
}

TEST_P(DropOn, DoesNothingWhereTextOrFocusIsRefused) {
    box().setLocked(true);
    EXPECT_EQ(dropText(box(), QStringLiteral("x")), Qt::IgnoreAction);
    box().setLocked(false);
    probe(second).on("GotFocus", [this] { probe(second).host().container.setEnabled(false); });
    EXPECT_EQ(dropText(box(), QStringLiteral("x")), Qt::IgnoreAction);
    EXPECT_EQ(box().text(), u"abcdef");
}

TEST_P(DropOn, HoveringMovesNothing) {
    QWidget& area = areaOf(box());
    Dragged dragged(area, QStringLiteral("x"));
    dragged.enter(startOf(area));
    dragged.move(endOf(area));
    EXPECT_EQ(drawn(box()), "ab[cd]ef");
    dragged.leave();
    form.window().press({keys::Tab, 0, NoModifier});
    form.window().press({keys::Right, 0, ShiftKey});
    EXPECT_EQ(drawn(box()), "ab[cde]f") << "Qt's widget has not moved on either";
}

INSTANTIATE_TEST_SUITE_P(Boxes, DropOn, testing::Values(&ProbeControl::SingleLine, &ProbeControl::MultiLine));

/// Real drags and the selection that the middle button pastes: only a real screen has them.
class OnAScreen : public testing::TestWithParam<const ClassModel*> {
protected:
    OnAScreen() : first(form.place(u"a", *GetParam())), second(form.place(u"b", *GetParam())) {}

    void SetUp() override {
        if (QGuiApplication::platformName() != QLatin1String("xcb")) GTEST_SKIP();
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(areaOf(boxOf(first)).window()));
        form.window().focus(first);
        put(boxOf(first), "ab[cd]ef");
        ProbeControl::takeLog();
    }

    /// From the middle of what is selected in the first box to a place in `target`.
    void dragSelection(QWidget& target, const QPoint& place, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWidget& area = areaOf(boxOf(first));
        QWindow& window = *area.window()->windowHandle();
        const int letter = area.fontMetrics().horizontalAdvance(QLatin1Char('c'));
        const QPoint from = area.mapTo(area.window(), startOf(area) + QPoint(3 * letter, 0));
        const QPoint to = target.mapTo(target.window(), place);
        QTimer steps;
        int step = 0;
        QObject::connect(&steps, &QTimer::timeout, [&] {
            ++step;
            if (step < 4) QTest::mouseMove(&window, to + QPoint(step - 3, 0));
            if (step == 4) QTest::mouseRelease(&window, Qt::LeftButton, held, to);
        });
        steps.start(20);
        QTest::mousePress(&window, Qt::LeftButton, {}, from);
        QTest::mouseMove(&window, from + QPoint(QApplication::startDragDistance() + 2, 0));
        QTest::qWait(300);
        ASSERT_GE(step, 4);
    }

    ProbeForm form;
    PlacedControl& first;
    PlacedControl& second;
};

TEST_P(OnAScreen, TextIsMovedWithinItsBox) {
    QWidget& area = areaOf(boxOf(first));
    dragSelection(area, endOf(area));
    EXPECT_EQ(drawn(boxOf(first)), "abefcd|");
    EXPECT_EQ(ProbeControl::takeLog(), "a.MouseDown a.Paste a.Change");
}

TEST_P(OnAScreen, TextIsCopiedToAnotherBox) {
    dragSelection(areaOf(boxOf(second)), endOf(areaOf(boxOf(second))));
    EXPECT_EQ(boxOf(first).text(), u"abcdef");
    EXPECT_EQ(drawn(boxOf(second)), "cd|");
    EXPECT_EQ(ProbeControl::takeLog(), "a.MouseDown a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus b.Paste b.Change");
}

TEST_P(OnAScreen, AClickIntoTheSelectionIsForTheCaret) {
    QWidget& area = areaOf(boxOf(first));
    QWindow& window = *area.window()->windowHandle();
    const int letter = area.fontMetrics().horizontalAdvance(QLatin1Char('c'));
    put(boxOf(first), "a[bcdef]");
    QTest::mouseClick(&window, Qt::LeftButton, {}, area.mapTo(area.window(), startOf(area) + QPoint(3 * letter, 0)));
    EXPECT_EQ(boxOf(first).selLength(), 0);
    EXPECT_GT(boxOf(first).selStart(), 1);
    EXPECT_LT(boxOf(first).selStart(), 5);
}

TEST_P(OnAScreen, TheMiddleButtonPastesWhatIsSelectedElsewhere) {
    QGuiApplication::clipboard()->setText(QStringLiteral("xyz"), QClipboard::Selection);
    QWidget& area = areaOf(boxOf(second));
    QTest::mouseClick(area.window()->windowHandle(), Qt::MiddleButton, {}, area.mapTo(area.window(), endOf(area)));
    EXPECT_EQ(drawn(boxOf(second)), "xyz|");
    EXPECT_EQ(ProbeControl::takeLog(), "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus b.MouseDown b.Paste b.Change");
}

INSTANTIATE_TEST_SUITE_P(Boxes, OnAScreen, testing::Values(&ProbeControl::SingleLine, &ProbeControl::MultiLine));

}  // namespace
}  // namespace kel::test
