#include <gtest/gtest.h>
#include <cstdlib>
#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPointer>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>

#include "tests/qt/Pictures.h"
#include "tests/qt/ProbeForm.h"

namespace kel::test {
namespace {

int steps(const std::string& log) { return ProbeControl::countOf(log, "Spin"); }

/// Two fields; the spinner of the second one is worked while the first has the focus.
class Spinner : public testing::Test {
protected:
    Spinner() : first(form.place(u"a")), second(form.place(u"b")) {
        form.show();
        form.window().focus(first);
        ProbeControl::takeLog();
    }

    QWidget& spinner() { return spinnerWidgetOf(second); }
    void press(bool upper) { pressMouse(spinner(), buttonOf(spinner(), upper)); }
    void release() { releaseMouse(spinner(), buttonOf(spinner(), true)); }
    void moveTo(const QPoint& place) { moveMouse(spinner(), place); }

    static bool repeats() {
        std::string log;
        return QTest::qWaitFor([&log] {
            log += ProbeControl::takeLog();
            return steps(log) >= 3;
        });
    }
    /// Over a time that is long enough for several steps.
    static bool rests() {
        ProbeControl::takeLog();
        QTest::qWait(ProbeForm::RepeatDelay + 10 * ProbeForm::RepeatInterval);
        return steps(ProbeControl::takeLog()) == 0;
    }

    ProbeForm form;
    PlacedControl& first;
    PlacedControl& second;
};

TEST_F(Spinner, GivesNoFocusBeforeItsControlDoes) {
    // A control that gets its focus by the spinner has to know it by then.
    std::int32_t value = UpDown::Rest;
    probe(second).on("GotFocus", [&] { value = probe(second).spinner().value(); });
    press(true);
    EXPECT_EQ(value, UpDown::Up);
    EXPECT_EQ(ProbeControl::takeLog(), "a.LostFocus a.ExitFocus b.EnterFocus b.GotFocus b.Spin2");
    release();
    press(false);
    release();
    EXPECT_EQ(ProbeControl::takeLog(), "b.Spin0");
}

TEST_F(Spinner, RepeatsWhileItIsHeldAndPointedAt) {
    press(true);
    EXPECT_EQ(steps(ProbeControl::takeLog()), 1);
    EXPECT_TRUE(repeats());
    moveTo({-5, 5});
    EXPECT_TRUE(rests()) << "the pointer is elsewhere";
    moveTo(buttonOf(spinner(), false));
    EXPECT_TRUE(rests()) << "on the other button";
    moveTo(buttonOf(spinner(), true));
    EXPECT_TRUE(repeats());
    release();
    EXPECT_TRUE(rests());
}

TEST_F(Spinner, OtherButtonsDoNothing) {
    QTest::mouseClick(&spinner(), Qt::RightButton, {}, buttonOf(spinner(), true));
    QTest::mouseClick(&spinner(), Qt::MiddleButton, {}, buttonOf(spinner(), true));
    EXPECT_EQ(steps(ProbeControl::takeLog()), 0);
}

/// Whatever a handler does, the spinner stops and nothing breaks.
TEST_F(Spinner, StopsWhenItsHandlerTakesItAway) {
    struct Case {
        const char* what;
        std::function<void()> handler;
    };
    const Case cases[] = {
        {"disabled", [this] { probe(second).spinner().setEnabled(false); }},
        {"its control disabled", [this] { probe(second).host().container.setEnabled(false); }},
        {"hidden", [this] { probe(second).spinner().setVisible(false); }},
        {"a message box over it", [this] { probe(second).host().system.messageBox(u"Stop.", 64, u"Title"); }},
    };
    for (const Case& row : cases) {
        int calls = 0;
        probe(second).on("Spin2", [&calls, &row] {
            if (++calls == 2) row.handler();
        });
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, [] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
        });
        closing.start(10);
        press(true);
        EXPECT_TRUE(QTest::qWaitFor([&calls] { return calls == 2; })) << row.what;
        EXPECT_TRUE(rests()) << row.what;
        probe(second).host().container.setEnabled(true);
        probe(second).spinner().setVisible(true);
        probe(second).spinner().setEnabled(true);
        EXPECT_TRUE(rests()) << row.what << ", and back again";
        release();
    }
}

TEST_F(Spinner, OutlivesAFormThatItsHandlerUnloads) {
    const QPointer<QWidget> widget = &spinner();
    ProbeControl& control = probe(second);
    int calls = 0;
    control.on("Spin2", [&] {
        ++calls;
        form.onEvent = [this](auto&&...) { form.unload(); };
        control.host().container.raiseEvent({.name = u"Event", .id = 1, .help = {}}, {});
        control.box().setText(u"back from its host");
        control.box().setFocus();
    });
    press(true);
    rests();
    EXPECT_EQ(calls, 1);
    letGo();
    EXPECT_TRUE(widget.isNull());
}

// ---- Pictures

QImage pictureOf(QWidget& widget, int scale) {
    QImage picture(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    widget.render(&picture);
    return picture;
}

/// What stands out from the paper in one button, away from its edge.
QRect arrowIn(const QImage& picture, bool upper) {
    const int scale = static_cast<int>(picture.devicePixelRatio());
    const int half = picture.height() / 2;
    const QRect inside =
        QRect(0, upper ? 0 : half, picture.width(), half).adjusted(3 * scale, 2 * scale, -3 * scale, -2 * scale);
    const int paper = qGray(picture.pixel(inside.bottomLeft()));
    return where(picture, inside, [paper](const QColor& pixel) { return std::abs(paper - qGray(pixel.rgb())) > 60; });
}

int widthOfInk(const QImage& picture, const QRect& arrow, int y) {
    const int paper = qGray(picture.pixel(arrow.left() - 1, y));
    int width = 0;
    for (int x = arrow.left(); x <= arrow.right(); ++x) width += std::abs(paper - qGray(picture.pixel(x, y))) > 60;
    return width;
}

TEST_F(Spinner, ShowsAnArrowInTheMiddleOfEachButton) {
    for (const char* const style : {"Fusion", "Windows"}) {
        for (const int scale : {1, 2}) {
            const std::unique_ptr<QStyle> look(QStyleFactory::create(QLatin1String(style)));
            spinner().setStyle(look.get());
            const QImage picture = pictureOf(spinner(), scale);
            for (const bool upper : {true, false}) {
                const QRect arrow = arrowIn(picture, upper);
                const QPoint middle(picture.width() / 2, picture.height() * (upper ? 1 : 3) / 4);
                EXPECT_LE(std::abs(arrow.center().x() - middle.x()), scale) << style << " at " << scale;
                EXPECT_LE(std::abs(arrow.center().y() - middle.y()), scale) << style << " at " << scale;
                EXPECT_GE(arrow.width(), 5 * scale) << style << " at " << scale;
                const bool pointsUp =
                    widthOfInk(picture, arrow, arrow.top()) < widthOfInk(picture, arrow, arrow.bottom());
                EXPECT_EQ(pointsUp, upper) << style << " at " << scale;
            }
            spinner().setStyle(nullptr);
        }
    }
}

TEST_F(Spinner, ShowsWhatItIsAbout) {
    const QImage idle = pictureOf(spinner(), 1);
    press(true);
    const QImage pressed = pictureOf(spinner(), 1);
    EXPECT_NE(pressed.copy(0, 0, 16, 10), idle.copy(0, 0, 16, 10));
    EXPECT_EQ(pressed.copy(0, 10, 16, 10), idle.copy(0, 10, 16, 10));
    release();
    moveTo({-5, 5});
    EXPECT_EQ(pictureOf(spinner(), 1), idle);
}

TEST_F(Spinner, ShowsThatItIsDisabledInEveryPalette) {
    QPalette thoughtless(QColor(45, 45, 48));
    thoughtless.setColor(QPalette::WindowText, Qt::white);
    thoughtless.setColor(QPalette::ButtonText, Qt::white);
    for (const QPalette& palette : {QPalette(), thoughtless}) {
        probe(second).spinner().setEnabled(true);
        spinner().setPalette(palette);
        const QImage enabled = pictureOf(spinner(), 1);
        probe(second).spinner().setEnabled(false);
        EXPECT_NE(pictureOf(spinner(), 1), enabled);
    }
}

}  // namespace
}  // namespace kel::test
