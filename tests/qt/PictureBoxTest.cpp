#include <gtest/gtest.h>
#include <KelProgressBarWidget.h>
#include <QAccessible>
#include <QApplication>
#include <QImage>

#include "controls/progress/KelProgressBar.h"
#include "platform/qt/base/FieldColors.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/QtPictureBox.h"
#include "tests/qt/Pictures.h"

namespace kel::test {
namespace {

class PaintCount final : public QObject {
public:
    explicit PaintCount(QObject& watched) { watched.installEventFilter(this); }
    int take() { return std::exchange(Count_, 0); }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        Count_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int Count_ = 0;
};

/// A bar of 300 pixels on a window that shows it.
class Picture : public testing::Test {
protected:
    Picture() : field(&window) {
        field.setGeometry(0, 0, 300, 20);
        bar().put_ShowTime(false);
        window.show();
        QCoreApplication::processEvents();
    }

    KelProgressBar& bar() { return static_cast<KelProgressBar&>(field.control()); }
    qt::QtPictureBox& box() { return dynamic_cast<qt::QtPictureBox&>(*bar().widgets().picture->view()); }
    QImage picture() { return box().grab().toImage(); }
    QColor ground() { return window.palette().color(QPalette::Window); }
    QColor ink() { return qt::captionColorOn(window.palette(), colors::SystemHighlight); }
    /// Where the bar is, by its top line, which no text reaches.
    QRect barIn(const QImage& picture) {
        QRect bar = where(picture, {0, 0, picture.width(), 1}, [this](const QColor& pixel) { return pixel == ink(); });
        if (!bar.isEmpty()) bar.setHeight(picture.height());
        return bar;
    }

    QWidget window;
    KelProgressBarWidget field;
};

TEST_F(Picture, IsShownBeforeThePutReturns) {
    PaintCount paints(box());
    bar().put_Value(50);
    EXPECT_EQ(paints.take(), 1);
    bar().put_Value(50);
    EXPECT_EQ(paints.take(), 0);
    bar().Clear();
    EXPECT_EQ(paints.take(), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(paints.take(), 0);
    EXPECT_EQ(inkIn(picture(), box().rect(), ground()), QRect());
}

TEST_F(Picture, TheBarReachesFromItsEdgeAndTheTextStandsInTheMiddle) {
    const struct {
        std::int32_t value;
        int left, right, mirroredLeft, mirroredRight;
    } cases[] = {{1, 0, 2, 297, 299}, {50, 0, 149, 150, 299}, {100, 0, 299, 0, 299}};
    for (const auto& row : cases) {
        window.setLayoutDirection(Qt::LeftToRight);
        bar().put_Value(row.value);
        EXPECT_EQ(barIn(picture()), QRect(QPoint(row.left, 0), QPoint(row.right, 19)));
        window.setLayoutDirection(Qt::RightToLeft);
        EXPECT_EQ(barIn(picture()), QRect(QPoint(row.mirroredLeft, 0), QPoint(row.mirroredRight, 19)));
    }
    bar().put_Value(0);
    EXPECT_EQ(barIn(picture()), QRect());
    for (const double size : {6.0, 9.0}) {
        bar().widgets().picture->setFont(u"", size);
        bar().put_Value(-1);
        bar().put_Max(100);
        bar().put_Value(0);
        const QRect text = inkIn(picture(), box().rect(), ground());
        ASSERT_FALSE(text.isEmpty());
        EXPECT_NEAR(text.center().x(), 150, 2);
        EXPECT_NEAR(text.center().y(), 10, 2);
    }
}

TEST_F(Picture, TextIsReadableOverBarAndGroundOnEveryDesktop) {
    QPalette contrast(Qt::black);
    contrast.setColor(QPalette::WindowText, Qt::white);
    contrast.setColor(QPalette::Highlight, QColor(26, 235, 255));
    bar().widgets().picture->setFontBold(true);
    for (const QPalette& desktop : {window.palette(), darkDesktop(), contrast}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            window.setPalette(desktop);
            window.setLayoutDirection(direction);
            bar().Clear();
            bar().put_Max(100);
            bar().put_Value(50);
            const QImage shown = picture();
            const QRect covered = barIn(shown);
            ASSERT_EQ(covered.width(), 150);
            const QRect uncovered = covered.translated(direction == Qt::LeftToRight ? 150 : -150, 0);
            // Whole strokes have the colour itself, which `captionColorOn` has made readable on the ground.
            const auto has = [&shown](const QRect& part, const QColor& color) {
                return !where(shown, part, [&color](const QColor& pixel) { return pixel == color; }).isEmpty();
            };
            EXPECT_TRUE(has(covered, ground()));
            EXPECT_TRUE(has(uncovered, ink()));
            EXPECT_LE(inkIn(shown, covered, ink()).width(), 30) << "and the bar is of that colour";
        }
    }
}

TEST_F(Picture, DisabledItIsGreyOnEveryDesktop) {
    for (const QPalette& desktop : {window.palette(), darkDesktop()}) {
        window.setPalette(desktop);
        bar().put_Max(100);
        bar().put_Value(50);
        const QImage shown = picture();
        bar().put_Enabled(false);
        EXPECT_NE(picture(), shown);
        EXPECT_EQ(picture().pixelColor(0, 0), qt::disabledCaptionColor(desktop));
        EXPECT_NE(picture().pixelColor(0, 0), desktop.color(QPalette::Active, QPalette::WindowText));
        bar().put_Enabled(true);
        EXPECT_EQ(picture(), shown);
    }
}

TEST_F(Picture, IsReadOutAsAProgressBarByTheNameOfItsControl) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&box());
    ASSERT_NE(spoken, nullptr);
    bar().put_Value(42);
    EXPECT_EQ(spoken->role(), QAccessible::ProgressBar);
    EXPECT_EQ(spoken->text(QAccessible::Value), QStringLiteral("42%"));
    ASSERT_NE(spoken->valueInterface(), nullptr);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toInt(), 42);
    EXPECT_EQ(spoken->valueInterface()->minimumValue().toInt(), 0);
    EXPECT_EQ(spoken->valueInterface()->maximumValue().toInt(), 100);
    // As it is written, whatever the bar in whole twips comes to.
    bar().put_Max(1000);
    for (const int value : {425, 435}) {
        bar().put_Value(value);
        const int percent = spoken->valueInterface()->currentValue().toInt();
        EXPECT_EQ(spoken->text(QAccessible::Value), QString::number(percent) + QLatin1Char('%'));
    }
    field.setAccessibleName(QStringLiteral("Copying"));
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Copying"));
    box().setAccessibleName(QStringLiteral("Bar"));
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Bar"));
}

}  // namespace
}  // namespace kel::test
