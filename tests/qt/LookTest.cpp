#include <gtest/gtest.h>
#include <KelComboWidget.h>
#include <KelDateWidget.h>
#include <KelNumberWidget.h>
#include <KelTextWidget.h>
#include <array>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "library/Control.h"
#include "library/SharedSettings.h"
#include "platform/qt/base/FieldColors.h"
#include "platform/qt/home/QtHome.h"
#include "platform/qt/widgets/QtLine.h"
#include "tests/qt/Pictures.h"
#include "tests/qt/QtForm.h"

namespace kel::test {
namespace {

TEST(Looks, FieldsAreReadableOnEveryDesktop) {
    constexpr Color Yellow = 0x0000FFFF;
    constexpr Color Black = 0x00000000;
    const SharedSettings& settings = qt::defaultHome().settings();
    const Color grounds[] = {settings.FieldBackNormal, settings.FieldBackLocked, settings.FieldBackFocus,
                             settings.FieldBackFocusLocked};
    QPalette cream;
    cream.setColor(QPalette::Base, QColor(255, 250, 235));
    for (const QPalette& desktop : {QPalette(), cream, darkDesktop()}) {
        const QColor paper = desktop.color(QPalette::Base);
        const bool isDark = luminance(paper) < 0.2;
        std::set<QRgb> seen;
        for (const Color back : grounds) {
            for (const Color fore : {colors::SystemWindowText, colors::SystemHighlight, Yellow}) {
                const QPalette shown = qt::fieldPalette({back, fore}, desktop);
                const QColor base = shown.color(QPalette::Active, QPalette::Base);
                seen.insert(base.rgb());
                EXPECT_GE(contrast(shown.color(QPalette::Active, QPalette::Text), base), 4.5) << back << ' ' << fore;
                EXPECT_LT(contrast(base, paper), isDark ? 2.5 : 1.7) << "a tint of the paper, and no lamp: " << back;
            }
        }
        EXPECT_EQ(seen.size(), std::size(grounds)) << "no two states look alike";
        EXPECT_EQ(qt::fieldGround(settings.FieldBackNormal, desktop), paper);
        EXPECT_EQ(qt::fieldGround(colors::SystemButtonFace, desktop), desktop.color(QPalette::Button));
        const QColor plain = qt::fieldPalette({colors::SystemWindow, Black}, desktop).color(QPalette::Text);
        EXPECT_GE(contrast(plain, paper), 12) << "black is no shade of grey";
        const QColor mandatory = qt::captionColorOn(desktop, colors::SystemHighlight);
        EXPECT_GE(contrast(mandatory, desktop.color(QPalette::Window)), 4.5) << "a mandatory field's caption";
    }
}

TEST(Looks, ColorsNameRedInTheLowByteAndTheSystemsByIndex) {
    EXPECT_EQ(qt::desktopColor(0x00C08040, {}), QColor(0x40, 0x80, 0xC0));
    const QPalette dark = darkDesktop();
    EXPECT_EQ(qt::desktopColor(0x80000005, dark), dark.color(QPalette::Base));
    EXPECT_EQ(qt::desktopColor(0x80000011, dark), dark.color(QPalette::Disabled, QPalette::Text));
    EXPECT_EQ(qt::desktopColor(0x800000FF, dark), dark.color(QPalette::WindowText)) << "no such index";
}

/// A letter types itself; "<" is Left, "{" Home, "#" Backspace, "_" Shift+Left, "}" Shift+Home, "*" Ctrl+A, and
/// "z" undoes.
void typeInto(QWidget& line, char key) {
    switch (key) {
        case '<': return QTest::keyClick(&line, Qt::Key_Left);
        case '{': return QTest::keyClick(&line, Qt::Key_Home);
        case '#': return QTest::keyClick(&line, Qt::Key_Backspace);
        case '_': return QTest::keyClick(&line, Qt::Key_Left, Qt::ShiftModifier);
        case '}': return QTest::keyClick(&line, Qt::Key_Home, Qt::ShiftModifier);
        case '*': return QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
        case 'z': return QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
        default: return QTest::keyClick(&line, key);
    }
}

/// Whether what is on the screen, where only a part was painted anew, is what a painting of all shows.
bool isPaintedWhole(QWidget& window) {
    const QImage seen = window.screen()->grabWindow(window.winId()).toImage();
    return seen.convertToFormat(QImage::Format_RGB32) == window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(Looks, WhatAKeyPaintsIsWhatIsThere) {
    struct Typing {
        const char* what;
        const char16_t* text;
        Selection selection;
        const char* keys;
    };
    for (const Typing& typing :
         {Typing{"at the end", u"", {}, "affiWWjf1"}, Typing{"in the middle", u"fifi fl", {4, 4}, "Wi##f"},
          Typing{"from the front", u"AVAVA", {0, 0}, "Tjz<W"}, Typing{"over a selection", u"one two", {2, 5}, "#x_y_#"},
          Typing{"over much", u"one two", {5, 5}, "}#z}x"}, Typing{"to nothing and on", u"ab", {2, 2}, "##cd{#e"},
          Typing{"out of the field", u"WWWWWWWWWWWW", {12, 12}, "WWWW####{i"},
          Typing{"the other way", u"אב", {2, 2}, "1a#<b"}}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QWidget window;
            auto* const field = new KelTextWidget(&window);
            field->setGeometry(0, 0, 300, 24);
            field->setLayoutDirection(direction);
            window.show();
            QWidget& line = widgetOf(*field->control().widgets().entry);
            line.setFocus();
            field->setText(QString::fromUtf16(typing.text));
            field->control().widgets().entry->select(typing.selection);
            for (const char* key = typing.keys; *key != 0; ++key) {
                QApplication::processEvents();
                typeInto(line, *key);
                QApplication::processEvents();
                EXPECT_TRUE(isPaintedWhole(window)) << typing.what << ", key " << (key - typing.keys);
            }
        }
    }
}

/// A field that overwrites, completes or shows a number alters text and selection several times at one key.
TEST(Looks, WhatAFieldMakesOfAKeyIsPaintedToo) {
    QWidget window;
    auto* const combo = new KelComboWidget(&window);
    combo->setLimitToList(false);
    combo->setList(QStringLiteral("Ash,Ashford,Brook,Brookfield,Fair"));
    auto* const text = new KelTextWidget(&window);
    text->setInsertMode(false);
    text->setText(QStringLiteral("Wife fi"));
    auto* const date = new KelDateWidget(&window);
    date->setValue(QDate(2013, 3, 15));
    const std::array<qt::KelControlWidget*, 4> fields{combo, text, date, new KelNumberWidget(&window)};
    for (std::size_t place = 0; place < fields.size(); ++place)
        fields[place]->setGeometry(0, static_cast<int>(place) * 30, 140, 24);
    window.resize(140, 120);
    window.show();
    constexpr std::string_view Keys = "12.5fFbBaAhor/<<<___{}###z*";
    std::minstd_rand random(7);
    for (qt::KelControlWidget* const field : fields) {
        QWidget& line = widgetOf(*field->control().widgets().entry);
        line.setFocus();
        std::string keys;
        while (keys.size() < 150) keys += Keys[random() % Keys.size()];
        for (std::size_t at = 0; at < keys.size(); ++at) {
            QApplication::processEvents();
            typeInto(line, keys[at]);
            QApplication::processEvents();
            ASSERT_TRUE(isPaintedWhole(window))
                << field->metaObject()->className() << " after " << keys.substr(0, at + 1);
        }
    }
}

TEST(Looks, AChangeOfTheDesktopReachesTheFields) {
    QWidget window;
    auto* const field = new KelTextWidget(&window);
    TextEntry& box = *field->control().widgets().entry;
    const auto& shown = dynamic_cast<qt::QtLine&>(*box.view());
    box.setBackColor(colors::SystemButtonFace);
    const QPalette light = window.palette();
    const QPalette dark = darkDesktop();

    window.setPalette(dark);
    EXPECT_EQ(shown.look().color(QPalette::Base), dark.color(QPalette::Button));
    EXPECT_EQ(shown.look().color(QPalette::Text), QColor(Qt::white));
    box.setBackColor(0x00C0FFC0);
    EXPECT_EQ(shown.look().color(QPalette::Base), qt::fieldGround(0x00C0FFC0, dark));
    EXPECT_EQ(shown.look().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(shown.look().color(QPalette::Window), dark.color(QPalette::Window));
    window.setPalette(light);
    EXPECT_EQ(shown.look().color(QPalette::Text), light.color(QPalette::Text));
    box.setBackColor(colors::SystemWindow);
    EXPECT_EQ(shown.look().color(QPalette::Base), light.color(QPalette::Base));
}

/// Where there is ink between the columns given.
QRect inkBetween(const QImage& picture, int left, int right) {
    return inkIn(picture, {left, 0, right - left, picture.height()}, picture.pixelColor(left, picture.height() / 2));
}

TEST(Looks, CaptionAndTextStandOnOneLine) {
    for (const bool multiLine : {false, true}) {
        QWidget window;
        auto* const field = new KelTextWidget(&window);
        field->setCaption(QStringLiteral("HHH"));
        field->setCaptionWidth(1200);
        field->setText(QStringLiteral("HHH"));
        field->setMultiLine(multiLine);
        field->setGeometry(0, 0, 240, multiLine ? 60 : 20);
        window.resize(240, 60);
        window.show();
        const QImage picture = field->grab().toImage();
        constexpr int Caption = 80;
        constexpr int Inset = 3;
        const QRect caption = inkBetween(picture, 0, Caption);
        const QRect text =
            inkBetween(picture.copy(0, Inset, 240, 20 - 2 * Inset), Caption + Inset, 160).translated(0, Inset);
        EXPECT_EQ(caption.top(), text.top());
        EXPECT_EQ(caption.bottom(), text.bottom());
        EXPECT_LE(caption.left(), 2) << "at the left edge";
        EXPECT_LE(text.left() - Caption, 8);
    }
}

TEST(Looks, FromRightToLeftTheCaptionStandsAtTheRight) {
    QWidget window;
    auto* const field = new KelTextWidget(&window);
    field->setCaption(QStringLiteral("HHH"));
    field->setCaptionWidth(1200);
    field->setGeometry(0, 0, 240, 20);
    window.show();
    const int height = QLineEdit().sizeHint().height();
    QWidget& box = widgetOf(*field->control().widgets().entry);
    EXPECT_EQ(box.geometry(), QRect(80, 0, 160, height));
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(box.geometry(), QRect(0, 0, 160, height));
    EXPECT_EQ(field->control().widgets().entry->bounds(), (Rect{1200, 0, 2400, 300})) << "in twips nothing changes";
    EXPECT_GE(inkBetween(field->grab().toImage(), 162, 240).right(), 236);
    field->resize(300, 20);
    EXPECT_EQ(box.geometry(), QRect(0, 0, 220, height));
}

}  // namespace
}  // namespace kel::test
