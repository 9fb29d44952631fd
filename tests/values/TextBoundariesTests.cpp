#include "values/TextBoundaries.h"

#include <gtest/gtest.h>
#include <vector>

#include "values/Text.h"

using namespace kel;

namespace {

using Step = std::size_t (*)(std::u16string_view, std::size_t, bool);
using Stops = std::vector<std::size_t>;

/// Every place that repeated steps from the front, or from the end, come to.
Stops stopsForward(std::u16string_view text, bool multiLine, Step step) {
    Stops stops;
    for (std::size_t position = 0; position < text.size();) {
        position = step(text, position, multiLine);
        stops.push_back(position);
    }
    return stops;
}

Stops stopsBack(std::u16string_view text, bool multiLine, Step step) {
    Stops stops;
    for (std::size_t position = text.size(); position > 0;) {
        position = step(text, position, multiLine);
        stops.push_back(position);
    }
    return stops;
}

/// The same stops seen from the other end.
Stops reversed(const Stops& forward) {
    Stops stops(forward.rbegin(), forward.rend());
    if (stops.empty()) return stops;
    stops.erase(stops.begin());
    stops.push_back(0);
    return stops;
}

}  // namespace

TEST(Characters, AreWhatAReaderCounts) {
    const struct {
        std::u16string_view text;
        bool multiLine;
        Stops stops;
    } cases[] = {
        {u"", false, {}},
        {u"a\U0001F600b", false, {1, 3, 4}},
        {u"e\u0301\u0323x", false, {3, 4}},
        {u"\u0301a", false, {1, 2}},
        {u"\u0915\u094D\u0937\u093F\u0915\u093F", false, {4, 6}},         // Hindi: a conjunct and a letter with signs
        {u"#\uFE0F\u20E3", false, {3}},                                   // key cap
        {u"\U0001F44D\U0001F3FDa", false, {4, 5}},                        // skin tone
        {u"\U0001F468\u200D\U0001F469\u200D\U0001F467a", false, {8, 9}},  // family
        {u"a\u200D\U0001F308", false, {2, 4}},                            // a letter joins nothing
        {u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7\U0001F1EC", false, {4, 8, 10}},  // two flags and a half
        {u"\u1112\u1161\u11AB\uAC00\u11A8\uAC01\u1161", false, {3, 5, 6, 7}},        // Korean in parts
        {u"\xD83D\u0301x\xDE00", false, {1, 2, 3, 4}},                               // half pairs
        {u"a\r\nb", true, {1, 3, 4}},
        {u"a\r\nb", false, {1, 2, 3, 4}},
        {u"\r\r\n\n", true, {1, 3, 4}},
        {u"\r\n\u0301", true, {2, 3}},
    };
    for (const auto& [text, multiLine, stops] : cases) {
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(stopsForward(text, multiLine, nextCharacter), stops);
        EXPECT_EQ(stopsForward(text, multiLine, characterEnd), stops);
        EXPECT_EQ(stopsBack(text, multiLine, previousCharacter), reversed(stops));
    }
}

TEST(Characters, ACaretInsideOneComesOut) {
    const std::u16string_view text = u"a\U0001F44D\U0001F3FDb";
    EXPECT_EQ(nextCharacter(text, 3, false), 5U);
    EXPECT_EQ(previousCharacter(text, 3, false), 1U);
    EXPECT_EQ(nextCharacter(text, 99, false), text.size());
    EXPECT_EQ(previousCharacter(text, 99, false), 5U);
}

TEST(CodePoints, KeepPairsAndLineBreaksTogether) {
    const std::u16string_view text = u"e\u0301\U0001F600\r\nx";
    EXPECT_EQ(stopsForward(text, true, nextCodePoint), (Stops{1, 2, 4, 6, 7}));
    EXPECT_EQ(stopsBack(text, true, previousCodePoint), (Stops{6, 4, 2, 1, 0}));
    EXPECT_EQ(stopsForward(text, false, nextCodePoint), (Stops{1, 2, 4, 5, 6, 7}));
}

TEST(Words, StopAtPunctuationAndLineEnds) {
    const struct {
        std::u16string_view text;
        bool multiLine;
        Stops forward;
        Stops back;
    } cases[] = {
        {u"one two  three", false, {4, 9, 14}, {9, 4, 0}},
        {u"a, b(c)", false, {1, 3, 4, 5, 6, 7}, {6, 5, 4, 3, 1, 0}},
        {u"12.50", false, {2, 3, 5}, {3, 2, 0}},
        {u"don't\u00A0go", false, {3, 4, 6, 8}, {6, 4, 3, 0}},
        {u"a_b\u2014c", false, {5}, {0}},
        {u"one\r\n\r\ntwo x", true, {3, 5, 7, 11, 12}, {11, 7, 5, 3, 0}},
        {u"one \r\n two", true, {4, 6, 7, 10}, {7, 6, 4, 0}},
        {u"one \r\n two", false, {7, 10}, {7, 0}},
    };
    for (const auto& [text, multiLine, forward, back] : cases) {
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(stopsForward(text, multiLine, nextWord), forward);
        EXPECT_EQ(stopsBack(text, multiLine, previousWord), back);
    }
    EXPECT_EQ(nextWord(u"a b", 99, false), 3U);
    EXPECT_EQ(previousWord(u"a b", 99, false), 2U);
}

TEST(Lines, EndAtPairsOfReturnAndFeedOnly) {
    const std::u16string_view text = u"ab\r\n\r\nc\rd\n";
    const struct {
        std::size_t position, start, end;
    } cases[] = {{0, 0, 2},  {2, 0, 2},  {3, 0, 2},   {4, 4, 4},  {5, 4, 4},
                 {6, 6, 10}, {8, 6, 10}, {10, 6, 10}, {99, 6, 10}};
    for (const auto& [position, start, end] : cases) {
        SCOPED_TRACE(position);
        EXPECT_EQ(lineStart(text, position, true), start);
        EXPECT_EQ(lineEnd(text, position, true), end);
        EXPECT_EQ(lineStart(text, position, false), 0U);
        EXPECT_EQ(lineEnd(text, position, false), text.size());
    }
    EXPECT_EQ(lineStart(u"ab\r\n", 4, true), 4U);
    EXPECT_EQ(lineEnd(u"ab\r\n", 4, true), 4U);
}

TEST(Snapping, MovesOffTheMiddleOfAUnit) {
    const std::u16string_view text = u"\U0001F600\r\ne\u0301";
    EXPECT_EQ(snapDown(text, 1, false), 0U);
    EXPECT_EQ(snapDown(text, 3, true), 2U);
    EXPECT_EQ(snapDown(text, 3, false), 3U);
    EXPECT_EQ(snapDown(text, 5, true), 5U);  // between a letter and its mark
    EXPECT_EQ(snapDown(text, 99, true), 6U);
}

/// Looking back once for each of them would outlast any patience.
TEST(Characters, LongTextsOfOneKindAreCrossedAtOnce) {
    constexpr std::size_t Many = 500'000;
    std::u16string picturesJoined;
    while (picturesJoined.size() < Many) picturesJoined += u"\U0001F468\u200D";
    EXPECT_EQ(nextCharacter(picturesJoined, 0, false), picturesJoined.size());
    EXPECT_EQ(previousCharacter(picturesJoined, picturesJoined.size(), false), 0U);
    EXPECT_EQ(nextCharacter(u"a" + std::u16string(Many, u'\u0301'), 0, false), Many + 1);
    std::u16string flags;
    while (flags.size() < Many) flags += u"\U0001F1E9\U0001F1EA";
    EXPECT_EQ(stopsForward(flags, false, characterEnd).size(), flags.size() / 4);
}
