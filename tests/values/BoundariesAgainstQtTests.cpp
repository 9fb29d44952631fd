#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include "values/Text.h"
#include "values/TextBoundaries.h"

using namespace kel;

namespace {

constexpr char16_t Joiner = 0x200D;
constexpr char16_t ThaiLetter = 0x0E01;  ///< one vowel sign joins only Thai letters

/// Text layouts ask the application for its font.
class BoundariesAgainstQt : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "tests";
        static char* arguments[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static const QGuiApplication application(count, arguments);
    }
};

bool isOneForQt(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return finder.toNextBoundary() == text.size();
}

bool isOneForUs(const QString& text) {
    const std::u16string units = text.toStdU16String();
    return nextCharacter(units, 0, false) == units.size();
}

/// The arrow keys with Ctrl at every position of one line.
void compareWords(const QString& text) {
    const QTextLayout layout(text);
    const std::u16string units = text.toStdU16String();
    for (int position = 0; position <= text.size(); ++position) {
        const auto at = static_cast<std::size_t>(position);
        if (snapDown(units, at, false) != at) continue;
        SCOPED_TRACE(toUtf8(units) + " at " + std::to_string(position));
        EXPECT_EQ(nextWord(units, at, false),
                  static_cast<std::size_t>(layout.nextCursorPosition(position, QTextLayout::SkipWords)));
        EXPECT_EQ(previousWord(units, at, false),
                  static_cast<std::size_t>(layout.previousCursorPosition(position, QTextLayout::SkipWords)));
    }
}

}  // namespace

TEST_F(BoundariesAgainstQt, TheSameCodePointsJoin) {
    for (char32_t point = 1; point < 0x110000; ++point) {
        if (QChar::isSurrogate(point) || QChar::category(point) == QChar::Other_NotAssigned) continue;
        const QString character = QStringView(QChar::fromUcs4(point)).toString();
        const bool isMark = isOneForQt(u'a' + character) || isOneForQt(ThaiLetter + character);
        ASSERT_EQ(isOneForUs(u'a' + character), isMark) << std::hex << unsigned{point};
        if (isMark) continue;
        const QString pair = character + Joiner + character;
        ASSERT_EQ(isOneForUs(pair), isOneForQt(pair)) << std::hex << unsigned{point};
        if (QChar::category(point) != QChar::Other_Format) continue;
        const QString marked = character + u'\u0301';
        ASSERT_EQ(isOneForUs(marked), isOneForQt(marked)) << std::hex << unsigned{point};
    }
}

TEST_F(BoundariesAgainstQt, EveryUnitBetweenTwoWords) {
    for (char16_t unit = 1; unit < 0xFFFF; ++unit) {
        if (QChar::isSurrogate(unit)) continue;
        compareWords(QStringLiteral("a") + QChar(unit) + u'b');
        if (HasFailure()) break;
    }
}
