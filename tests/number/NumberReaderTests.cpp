#include "values/NumberReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "runtime/Numbers.h"
#include "values/NumberFormat.h"
#include "values/Text.h"

namespace kel {
namespace {

constexpr double LargestNumber = std::numeric_limits<double>::max();
constexpr double Unread = -77;

struct Reading {
    NumberReading kind = NumberReading::None;
    double number = Unread;
};

Reading read(std::u16string_view text, std::u16string_view region = u"en-GB") {
    Reading reading;
    reading.kind = readNumber(text, *findRegion(region), reading.number);
    return reading;
}

TEST(NumberReader, ReadsWhatPeopleWrite) {
    const struct {
        std::u16string_view text;
        double number;
        std::u16string_view region = u"en-GB";
    } cases[] = {
        {u"1,234,567.89", 1234567.89},
        {u"1234,567", 1234567},
        {u".5", 0.5},
        {u" \t12.5\r\n", 12.5},
        {u"-5", -5},
        {u"5-", -5},
        {u"5 -", -5},
        {u"+ 5", 5},
        {u"\u22125", -5},
        {u"(1,234.50)", -1234.5},
        {u"-(5.00)", -5},
        {u"-0", 0},
        {u"(0.00)", 0},
        {u"1E+20", 1e20},
        {u"1e-400", 0},
        {u"0e999999999999999999999", 0},
        {u"1.234.567,89", 1234567.89, u"de-DE"},
        {u"1\u202F234\u202F567,5", 1234567.5, u"fr-FR"},
        {u"1\u00A0234,5-", -1234.5, u"fr-FR"},
        {u"\u22121\u00A0234,50", -1234.5, u"sv-SE"},
        {u"12,34,567", 1234567, u"en-IN"},
        {u"١٬٢٣٤٫٥٠", 1234.5, u"ar-EG"},
        {u"\u061C-٥", -5, u"ar-EG"},
        {u"٥\u061C-", -5, u"ar-EG"},
        {u"\u200E\u2212۵", -5, u"fa-IR"},
        {u"9007199254740993", 9007199254740992.0},
        {u"9007199254740993.0000000000000000001", 9007199254740994.0},
        {u"179769313486231570000000000000000000000000000000000000000000e249", LargestNumber},
        {u"0.00000000000000000000000000000000000123456789012345678901", 1.2345678901234568e-36},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(toUtf8(test.text));
        const Reading reading = read(test.text, test.region);
        EXPECT_EQ(reading.kind, NumberReading::Number);
        EXPECT_EQ(reading.number, test.number);
        EXPECT_FALSE(reading.number == 0 && std::signbit(reading.number));
    }
}

TEST(NumberReader, SaysWhatIsNoNumber) {
    const std::pair<std::u16string_view, std::vector<std::u16string_view>> cases[] = {
        {u"en-GB", {u"",          u" ",     u"-",      u".",       u"-.",     u"()",     u"(5",     u"5)",
                    u"((5))",     u"--5",   u"-5-",    u"+(5)",    u"(+5)",   u"5-5",    u"abc",    u"5a",
                    u"1 2",       u"1.2.3", u"1,23",   u"1,2345",  u",123",   u"1,,234", u"1,234,", u"1,23,456",
                    u"1.234,567", u"1.5,",  u"1e",     u"1e+",     u"e5",     u"1e5.5",  u"5%",     u"NaN",
                    u"inf",       u"0x10",  u"\xD800", u"1\xDC00", u"\xD83A", u"٥"}},
        {u"de-DE", {u"1.5"}},
        {u"en-IN", {u"1,234,567"}},
        {u"ar-EG", {u"1,5", u"1\xD83A"}},
        {u"fr-FR", {u"1 23", u"1  234"}},
        {u"sv-SE", {u"("}},
    };
    for (const auto& [region, texts] : cases) {
        for (const std::u16string_view text : texts) {
            const Reading reading = read(text, region);
            EXPECT_EQ(reading.kind, NumberReading::None) << toUtf8(text);
            EXPECT_EQ(reading.number, Unread) << "the caller's number is left alone";
        }
    }
}

TEST(NumberReader, IsNotUpsetByTheEndlessAndTheHuge) {
    EXPECT_EQ(read(u"1e400").kind, NumberReading::TooLarge);
    EXPECT_EQ(read(u"-1e99999999999999999999").number, -LargestNumber);
    constexpr std::size_t Megabyte = 1 << 20;
    const std::u16string nines(Megabyte, u'9');
    const std::u16string zeros(Megabyte, u'0');
    EXPECT_EQ(read(nines).kind, NumberReading::TooLarge);
    EXPECT_EQ(read(nines).number, LargestNumber);
    EXPECT_EQ(read(zeros + u"5").number, 5);
    EXPECT_EQ(read(u"0." + nines).number, 1);
    EXPECT_EQ(read(u"0." + zeros + u"5").number, 0);
    EXPECT_EQ(read(u"1" + zeros + u"e-1048575").number, 10);
    std::u16string grouped = u"1";
    for (std::size_t i = 0; i < Megabyte / 4; ++i) grouped += u",000";
    EXPECT_EQ(read(grouped).kind, NumberReading::TooLarge);
    const std::u16string blanks(Megabyte, u' ');
    EXPECT_EQ(read(blanks + u"-" + blanks + u"5" + blanks).number, -5);
    for (const char16_t unit : {u'(', u'-', u',', u'\xD800'})
        EXPECT_EQ(read(std::u16string(Megabyte, unit), u"ar-EG").kind, NumberReading::None);
}

TEST(NumericValues, AreNumbersAndTextsOfNumbers) {
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        const char* what;
        Variant value;
        bool isNumeric;
        double number;
    } cases[] = {
        {"a double", 12.345, true, 12.35},
        {"True", true, true, -1},
        {"nothing yet", Empty{}, true, 0},
        {"a text", std::u16string(u"(1,234.555)"), true, 1234.56 * -1},
        {"a text with a half", std::u16string(u"1.005"), true, 1.01},
        {"a general text", generalNumber(1e20, defaultRegion()), true, 1e20},
        {"the empty text", std::u16string(), false, 0},
        {"too large a text", std::u16string(u"1e400"), false, LargestNumber},
        {"no value", Null{}, false, 0},
        {"a day", Date{41639.5}, false, 41639.5},
        {"not a number", std::nan(""), false, 0},
        {"infinity", infinity, false, LargestNumber},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        EXPECT_EQ(isNumeric(test.value, defaultRegion()), test.isNumeric);
        EXPECT_EQ(numberFromValue(test.value, 2, defaultRegion()), test.number);
    }
    EXPECT_EQ(numberFromValue(std::u16string(u"1,5"), 0, *findRegion(u"de-DE")), 2);

    // What an edit has left of a display form.
    const struct {
        const char16_t* text;
        double number;
        std::u16string_view region = u"en-GB";
    } leavings[] = {
        {u",235.00", 235},    {u"1,.5", 1.5},    {u"(1,23.00)", -123},        {u"-(1,23.00)", -123},
        {u"(1,235.00", 1235}, {u"9(5.00)", -95}, {u"1.23,00", 123, u"de-DE"}, {u"12 ,5", 12.5, u"fr-FR"},
        {u"1.2.3", 0},
    };
    for (const auto& left : leavings) {
        SCOPED_TRACE(toUtf8(left.text));
        const Variant text = std::u16string(left.text);
        EXPECT_EQ(numberFromValue(text, 2, *findRegion(left.region)), left.number);
        EXPECT_FALSE(isNumeric(text, *findRegion(left.region)));
    }
}

}  // namespace
}  // namespace kel
