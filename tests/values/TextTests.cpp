#include "values/Text.h"

#include <gtest/gtest.h>

using namespace kel;
using namespace std::string_literals;

TEST(Utf8, WritesAndReadsEveryLengthOfCharacter) {
    const struct {
        std::u16string text;
        std::string bytes;
    } cases[] = {
        {u"", ""},
        {u"\u007F\u0080", "\x7F\xC2\x80"},
        {u"\u07FF\u0800", "\xDF\xBF\xE0\xA0\x80"},
        {u"\uD7FF\uE000\uFFFF", "\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {u"a\0b"s, "a\0b"s},
    };
    for (const auto& [text, bytes] : cases) {
        SCOPED_TRACE(bytes);
        EXPECT_EQ(toUtf8(text), bytes);
        EXPECT_EQ(fromUtf8(bytes), text);
    }
}

TEST(Utf8, WritesAHalfPairAsTheReplacementCharacter) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(toUtf8(u"a\xD83D"), "a" + replacement);
    EXPECT_EQ(toUtf8(u"\xD83Dz"), replacement + "z");
    EXPECT_EQ(toUtf8(u"\xDE00\xD83D"), replacement + replacement);
}

TEST(Utf8, RefusesBytesThatAreNoText) {
    const std::string_view cases[] = {
        "\x80",                                // a trail byte alone
        "\xC3",                                // cut short
        std::string_view("a\xE2\x82\xAC", 3),  // cut short, though memory goes on
        "\xE2\x82z",                           // an ASCII byte among the trails
        "\xC0\x80",                            // overlong
        "\xE0\x9F\xBF",                        // overlong
        "\xF0\x8F\xBF\xBF",                    // overlong
        "\xED\xA0\x80",                        // an encoded surrogate
        "\xF4\x90\x80\x80",                    // beyond the last code point
        "\xF8\x88\x80\x80\x80",
        "\xFF",
    };
    for (const std::string_view bytes : cases)
        EXPECT_EQ(fromUtf8(bytes), std::nullopt) << ::testing::PrintToString(bytes);
}

TEST(Windows1252, ReadsEveryByteAndWritesItBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    const std::u16string text = fromWindows1252(bytes);
    EXPECT_EQ(text.substr(0x80, 6), u"\u20AC\u0081\u201A\u0192\u201E\u2026");
    EXPECT_EQ(text.substr(0x9D, 4), u"\u009D\u017E\u0178\u00A0");
    EXPECT_EQ(text.substr(0xFC), u"\u00FC\u00FD\u00FE\u00FF");
    EXPECT_EQ(toWindows1252(text), bytes);
}

TEST(Windows1252, WritesNothingWhenACharacterHasNoByte) {
    for (const std::u16string_view text : {u"\u0100", u"caf\u00E9 \u0080", u"\U0001F600", u"\u0394"}) {
        EXPECT_EQ(toWindows1252(text), std::nullopt) << toUtf8(text);
    }
}

TEST(Names, CompareWithoutTheCaseOfAsciiLettersOnly) {
    EXPECT_TRUE(equalsIgnoringCase(u"CaptionWidth", u"captionWIDTH"));
    EXPECT_FALSE(equalsIgnoringCase(u"Text", u"TextRaw"));
    EXPECT_FALSE(equalsIgnoringCase(u"[", u"{"));  // 32 apart, as letters are
    EXPECT_FALSE(equalsIgnoringCase(u"\u00C9", u"\u00E9"));
}
