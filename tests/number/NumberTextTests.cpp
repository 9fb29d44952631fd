#include "controls/number/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/Drawn.h"

namespace kel {
namespace {

struct Box {
    std::u16string text;
    TextSpan selection;

    explicit Box(std::string_view drawn) {
        const test::Drawing drawing(drawn);
        text = drawing.text;
        selection = {drawing.start, drawing.length};
    }

    void apply(const KeyEffect& effect) {
        if (effect.replaced) {
            ASSERT_LE(effect.replaced->start + effect.replaced->length, text.size());
            text.replace(effect.replaced->start, effect.replaced->length, 1, effect.inserted);
        }
        if (effect.selection) selection = *effect.selection;
    }

    std::string drawn() const { return toUtf8(test::drawnText(text, selection.start, selection.length)); }
};

struct KeyCase {
    const char* before;
    char32_t key;
    KeyAnswer answer;
    const char* after;
};

void checkKeys(const KeyRules& rules, std::initializer_list<KeyCase> cases) {
    for (const KeyCase& test : cases) {
        SCOPED_TRACE(testing::Message() << test.before << " and key " << static_cast<unsigned>(test.key));
        Box box(test.before);
        const KeyEffect effect = filterKey(test.key, box.text, box.selection, rules);
        EXPECT_EQ(effect.answer, test.answer);
        box.apply(effect);
        EXPECT_EQ(box.drawn(), test.after);
    }
}

TEST(NumberKeys, InsertingLetOnlyNumbersThrough) {
    using enum KeyAnswer;
    checkKeys({.decimals = 2, .insertMode = true}, {
                                                       {"1|2", 8, Passes, "1|2"},
                                                       {"1|2", 22, Passes, "1|2"},
                                                       {"1|2", 13, MovesOn, "1|2"},
                                                       {"1|2", U'5', Passes, "1|2"},
                                                       {"1|2", U'a', Beeps, "1|2"},
                                                       {"1|2", U',', Beeps, "1|2"},
                                                       {"1|2", U' ', Beeps, "1|2"},
                                                       {"1|2", U'\u2212', Beeps, "1|2"},
                                                       {"1|2", U'\U0001F600', Beeps, "1|2"},
                                                       {"1|2", U'-', Refused, "-[12]"},
                                                       {"|", U'-', Refused, "-|"},
                                                       {"(5.0|0)", U'-', Refused, "-[(5.00)]"},
                                                       {"1|2", U'.', Refused, "1.[2]"},
                                                       {"12|", U'.', Refused, "12.|"},
                                                       {"|", U'.', Refused, ".|"},
                                                       {"1[23]4", U'.', Refused, "1.[4]"},
                                                       {"1|2.34", U'.', Refused, "1.[34]"},
                                                       {"12.|34", U'.', Refused, "12.[34]"},
                                                       {"12.3|4", U'.', Refused, "12.[4]"},
                                                       {"12.34|", U'.', Refused, "12.|"},
                                                       {"[12.34]", U'.', Refused, ".[34]"},
                                                   });
}

TEST(NumberKeys, OverwritingReplacesTheNextCharacter) {
    using enum KeyAnswer;
    checkKeys({.decimals = 2}, {
                                   {"1|23", U'5', Passes, "1[2]3"},
                                   {"123|", U'5', Passes, "123|"},
                                   {"1|\U0001E951", U'5', Passes, "1[\U0001E951]"},
                                   {"1|23", U'.', Refused, "1.[3]"},
                                   {"[1234]", U'.', Refused, ".[234]"},
                                   {"1|2.34", U'.', Refused, "1.[34]"},
                               });
}

TEST(NumberKeys, FollowTheFieldsState) {
    using enum KeyAnswer;
    checkKeys({.decimals = 0}, {{"1|2", U'.', Refused, "1|2"}});
    checkKeys({.decimals = 2, .locked = true}, {
                                                   {"1|2", U'-', Passes, "1|2"},
                                                   {"1|2", U'.', Passes, "1|2"},
                                                   {"1|2", U'5', Passes, "1|2"},
                                                   {"1|2", U'a', Beeps, "1|2"},
                                                   {"1|2", 13, MovesOn, "1|2"},
                                               });
    checkKeys({.decimals = 2, .decimalCharacter = u',', .insertMode = true},
              {{"1|2", U',', Refused, "1,[2]"}, {"1|2", U'.', Beeps, "1|2"}});
    checkKeys({.decimals = 2, .decimalCharacter = u'\u066B', .zeroDigit = U'\u0660', .insertMode = true},
              {{"1|2", U'\u0665', Passes, "1|2"}, {"1|2", U'\u066B', Refused, "1\u066B[2]"}});
    const KeyEffect far = filterKey(U'.', u"12", {7, 9}, {.decimals = 2, .insertMode = true});
    EXPECT_EQ(far.replaced, (TextSpan{2, 0})) << "a caret behind the end is at the end";
}

TEST(NumberPaste, BringsThePlainFormOrNothing) {
    const struct {
        const char* before;
        std::u16string_view pasted;
        std::int16_t decimals;
        const char* result;  ///< null: refused
    } cases[] = {
        {"[0]", u"1,234.50", 2, "1234.5"}, {"[0]", u"(1,234.50)\r\n", 2, "-1234.5"},
        {"|", u"12.345", 2, "12.35"},      {"|", u"2.5", 0, "3"},
        {"[12]", u"0.00", 2, "0"},         {"1.|", u"05", 2, "1.05"},
        {"1|2", u" 007\n", 2, "10072"},    {"|", u"1E+20", 2, "100000000000000000000"},
        {"12|", u"-5", 2, nullptr},        {"|12", u"-5", 2, "-512"},
        {"1.5|", u"2.5", 2, nullptr},      {"1,2|34.50", u"9", 2, nullptr},
        {"|", u"12abc", 2, nullptr},       {"|", u"", 2, nullptr},
        {"|", u"1e400", 2, nullptr},       {"|", u"1,23", 2, nullptr},
        {"|", u"\xD800", 2, nullptr},      {"1|", u"0.5", 2, nullptr},
        {"1|", u"2.50\u00A0", 2, "12.5"},  {"|7", u"2.505", 2, nullptr},
        {"-|", u"0.5", 2, "-.5"},          {"|12", u"5-", 2, nullptr},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.before << " and " << toUtf8(test.pasted));
        Box box(test.before);
        const auto plain = filterPaste(test.pasted, box.text, box.selection, test.decimals, defaultRegion());
        ASSERT_EQ(plain.has_value(), test.result != nullptr);
        if (!plain) continue;
        box.text.replace(box.selection.start, box.selection.length, *plain);
        EXPECT_EQ(toUtf8(box.text), test.result);
    }
}

TEST(NumberText, ClampsAndSteps) {
    const double noNumber = std::nan("");
    EXPECT_EQ(clampNumber(5, 10, 20), 10);
    EXPECT_EQ(clampNumber(25, 10, 20), 20);
    EXPECT_EQ(clampNumber(15, 20, 10), 20) << "the lower bound comes first";
    EXPECT_EQ(clampNumber(noNumber, 10, 20), 20);
    EXPECT_EQ(steppedNumber(1.9, -0.05), 1.85);
    EXPECT_EQ(numberColor(-0.01), 0x0000FFU);
}

TEST(NumberText, TellsTheRange) {
    EXPECT_EQ(toUtf8(rangeMessage(-1000, 20000, 2, false, defaultRegion())),
              "This field only accepts values from (1,000.00) to 20000.00.");
    EXPECT_EQ(toUtf8(rangeMessage(1, 1000, 0, true, *findRegion(u"de-DE"))),
              "This field only accepts values from 1 to 1.000.");
}

}  // namespace
}  // namespace kel
