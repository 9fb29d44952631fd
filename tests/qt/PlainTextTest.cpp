#include "platform/qt/widgets/PlainText.h"

#include <gtest/gtest.h>
#include <QPlainTextEdit>
#include <random>

#include "values/Text.h"

namespace kel::test {
namespace {

namespace plain = qt::plain;

std::u16string longText() {
    std::u16string text;
    for (int line = 0; line < 5000; ++line) text += u"line of text " + widen(std::to_string(line)) + u"\r\n";
    return text;
}

const std::u16string Texts[] = {
    u"",
    u"plain",
    u"one\r\ntwo",
    u"\r\n\r\n",
    u"ends with one\r\n",
    u"lone\rreturn",
    u"lone\nfeed",
    u"\n\r\n\r\r\n\n",
    u"\U0001F600\r\n\U0001F600",
    u"Qt's own\u2029ends\u2028of\uFDD0 lines\uFDD1",
    longText(),
};

TEST(PlainText, EveryTextComesBackUnchanged) {
    QPlainTextEdit edit;
    for (const std::u16string& text : Texts) {
        edit.setPlainText(plain::encoded(text));
        EXPECT_EQ(plain::text(*edit.document()), text);
        EXPECT_EQ(plain::length(*edit.document()), text.size());
    }
}

TEST(PlainText, PositionsCountALineBreakTwice) {
    QPlainTextEdit edit;
    for (const std::u16string& text : Texts) {
        edit.setPlainText(plain::encoded(text));
        const std::size_t step = text.size() > 1000 ? 997 : 1;
        for (std::size_t position = 0; position <= text.size(); position += step) {
            const bool splitsBreak = position > 0 && text.substr(position - 1, 2) == u"\r\n";
            const int inDocument = plain::toDocument(*edit.document(), position);
            EXPECT_EQ(plain::toText(*edit.document(), inDocument), splitsBreak ? position - 1 : position);
        }
    }
}

/// The same edits to a document and to a string, at any two places: line breaks come together and apart.
TEST(PlainText, EditsAsAStringDoes) {
    const std::u16string_view pieces[] = {u"", u"\r", u"\n", u"\r\n", u"a", u"b\r\nc", u"\n\r", u"\U0001F600"};
    std::mt19937 random(1);
    QPlainTextEdit edit;
    std::u16string text;
    for (int round = 0; round < 2000; ++round) {
        const std::size_t start = random() % (text.size() + 1);
        const std::size_t end = std::min(text.size(), start + random() % 4);
        const std::u16string_view piece = pieces[random() % std::size(pieces)];
        plain::replace(*edit.document(), start, end, piece);
        text.replace(start, end - start, piece);
        ASSERT_EQ(plain::text(*edit.document()), text) << "round " << round;
        if (text.size() > 60) {
            text.clear();
            edit.clear();
        }
    }
}

}  // namespace
}  // namespace kel::test
