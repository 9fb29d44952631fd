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
    /// Below the text.
    static QRect lineOf(const QImage& picture) { return {0, picture.height() - 4, picture.width(), 1}; }
    /// Where the bar is, which is there where it is not empty.
    QRect barIn(const QImage& picture) {
        bar().Clear();
        const QImage empty = box().grab().toImage();
        QRect bar;
        for (int x = 0, y = lineOf(picture).y(); x < picture.width(); ++x)
            if (contrast(picture.pixelColor(x, y), empty.pixelColor(x, y)) > 1.3)
                bar |= QRect(x, 0, 1, picture.height());
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
    EXPECT_EQ(barIn(picture()), QRect());
}

TEST_F(Picture, TheBarReachesFromItsEdgeAndTheTextStandsInTheMiddle) {
    constexpr int Frame = 2;  // of the style's
    const struct {
        std::int32_t value;
        int left, right, mirroredLeft, mirroredRight;
    } cases[] = {{2, 0, 5, 294, 299}, {50, 0, 149, 150, 299}, {100, 0, 299, 0, 299}};
    for (const auto& row : cases) {
        window.setLayoutDirection(Qt::LeftToRight);
        bar().put_Value(row.value);
        const QRect bar = barIn(picture());
        EXPECT_NEAR(bar.left(), row.left, Frame);
        EXPECT_NEAR(bar.right(), row.right, Frame);
        this->bar().put_Max(100);
        this->bar().put_Value(row.value);
        window.setLayoutDirection(Qt::RightToLeft);
        const QRect mirrored = barIn(picture());
        EXPECT_NEAR(mirrored.left(), row.mirroredLeft, Frame);
        EXPECT_NEAR(mirrored.right(), row.mirroredRight, Frame);
    }
    bar().put_Value(0);
    EXPECT_EQ(barIn(picture()), QRect());
    for (const double size : {6.0, 9.0}) {
        bar().widgets().picture->setFont(u"", size);
        bar().put_Value(-1);
        bar().put_Max(100);
        bar().put_Value(0);
        const QImage shown = picture();
        const QRect text = where(shown, shown.rect(), [](const QColor& pixel) { return pixel.lightness() < 100; });
        ASSERT_FALSE(text.isEmpty());
        EXPECT_NEAR(text.center().x(), 150, 2);
        EXPECT_NEAR(text.center().y(), 10, 2);
    }
}

/// The best that any pixel of a part stands out with.
double contrastIn(const QImage& picture, const QRect& part, const QColor& paper) {
    double best = 1;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            best = std::max(best, contrast(picture.pixelColor(x, y), paper));
    return best;
}

TEST_F(Picture, TextIsReadableOverBarAndGroundOnEveryDesktop) {
    QPalette highContrast(Qt::black);
    highContrast.setColor(QPalette::WindowText, Qt::white);
    highContrast.setColor(QPalette::Highlight, QColor(26, 235, 255));
    bar().widgets().picture->setFontBold(true);
    for (const QPalette& desktop : {window.palette(), darkDesktop(), highContrast}) {
        window.setPalette(desktop);
        for (const bool enabled : {true, false}) {
            bar().put_Enabled(enabled);
            bar().put_Max(100);
            bar().put_Value(50);
            const QImage shown = picture();
            // Half of the letters on either side.
            constexpr QRect Left(138, 5, 11, 10);
            constexpr QRect Right(151, 5, 11, 10);
            const double least = enabled ? 4.5 : 1.7;
            for (const QRect& part : {Left, Right}) {
                const QColor paper = shown.pixelColor(part == Left ? 120 : 180, part.center().y());
                const double found = contrastIn(shown, part, paper);
                EXPECT_GE(found, least);
                EXPECT_TRUE(enabled || found < 7) << "grey, but " << found;
            }
            EXPECT_GT(contrast(shown.pixelColor(120, 10), shown.pixelColor(180, 10)), 1.3) << "bar and ground";
        }
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
