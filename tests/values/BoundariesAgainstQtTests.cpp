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

TEST_F(BoundariesAgainstQt, CharactersOfATableOfTexts) {
    for (const char16_t* text : {
             u"nai\u0308ve re\u0301sume\u0301",
             u"नमस्ते दुनिया",
             u"हिन्दी क्षत्रिय",
             u"বাংলাদেশ ক্ষি",
             u"ગુજરાતી",
             u"తెలుగు",
             u"Tiếng Việt",
             u"ที่นี่ กำ",
             u"\U0001F468\u200D\U0001F469\u200D\U0001F467\U0001F44D\U0001F3FD",
             u"\U0001F1E9\U0001F1EA\U0001F1EB",
             u"\u1112\u1161\u11ABgeul 한글",
             u"1\uFE0F\u20E3 \u2764\uFE0F",
             u"العَرَبِيَّة",
             u"שָׁלוֹם",
             u"が\u3099か\u3099",
         }) {
        const QString line = QString::fromUtf16(text);
        const QTextLayout layout(line);
        const std::u16string units = line.toStdU16String();
        SCOPED_TRACE(toUtf8(units));
        for (int position = 0; position < line.size();) {
            const int next = layout.nextCursorPosition(position);
            EXPECT_EQ(nextCharacter(units, static_cast<std::size_t>(position), false), static_cast<std::size_t>(next));
            EXPECT_EQ(previousCharacter(units, static_cast<std::size_t>(next), false),
                      static_cast<std::size_t>(position));
            position = next;
        }
    }
}

TEST_F(BoundariesAgainstQt, WordsOfATableOfTexts) {
    for (const char16_t* text : {
             u"",
             u" ",
             u"one",
             u"one two  three ",
             u"  (one) two,three; four.",
             u"a.b.c...d ,. e",
             u"12.50 - 3/4",
             u"it's \"quoted\" `x` ~y~",
             u"C:\\folder\\file.txt",
             u"mail@example.org?",
             u"x_y\u2014z\u00A0\u202Fw",
             u"\t\ttabs\tbetween",
             u"\U0001F600\U0001F600 \U0001F1E9\U0001F1EA!",
             u"e\u0301te\u0301 fini",
             u"\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD",
             u"\u65E5\u672C\u8A9E\u3000\u3001x\u3002",
             u"\u2028a\u2029b",
         }) {
        compareWords(QString::fromUtf16(text));
    }
}

TEST_F(BoundariesAgainstQt, EveryUnitBetweenTwoWords) {
    for (char16_t unit = 1; unit < 0xFFFF; ++unit) {
        if (QChar::isSurrogate(unit)) continue;
        compareWords(QStringLiteral("a") + QChar(unit) + u'b');
        if (HasFailure()) break;
    }
}
