#include "values/Coercion.h"

#include <gtest/gtest.h>
#include <cmath>
#include <limits>

#include "values/Text.h"

using namespace kel;

namespace {

constexpr auto None = CoercionFault::None;
constexpr auto Mismatch = CoercionFault::TypeMismatch;
constexpr auto Overflow = CoercionFault::Overflow;
constexpr double Infinity = std::numeric_limits<double>::infinity();

template <class T>
struct Case {
    const char* what;
    Variant from;
    CoercionFault fault;
    T result{};  ///< after a fault, the variable is as it was
    std::u16string_view region = u"en-GB";
};

template <class T, std::size_t Count>
void check(const Case<T> (&cases)[Count], const T& untouched) {
    for (const Case<T>& one : cases) {
        SCOPED_TRACE(one.what);
        T result = untouched;
        EXPECT_EQ(coerce(one.from, *findRegion(one.region), result), one.fault);
        EXPECT_TRUE(result == (one.fault == None ? one.result : untouched)) << ::testing::PrintToString(result);
    }
}

Variant text(std::u16string_view value) { return std::u16string(value); }

}  // namespace

TEST(Coercion, ToBoolean) {
    const Case<bool> cases[] = {
        {"nothing yet", Empty{}, None, false},         {"any number but zero", 0.25, None, true},
        {"a word", text(u"tRUE"), None, true},         {"a word between blanks", text(u" False "), None, false},
        {"a number as text", text(u"-1"), None, true}, {"another word", text(u"yes"), Mismatch},
        {"an empty text", text(u""), Mismatch},
    };
    check(cases, true);
}

TEST(Coercion, ToIntegers) {
    const Case<std::int16_t> shorts[] = {
        {"nothing yet", Empty{}, None, 0},
        {"half to even, down", 12.5, None, 12},
        {"less than half", 0.49999999999999994, None, 0},
        {"the largest, rounded down", 32767.4, None, 32767},
        {"the largest and a half", 32767.5, Overflow},
        {"the smallest and a half", -32768.5, None, -32768},
        {"a long integer too large", std::int32_t{32768}, Overflow},
        {"a day", Date{41639.75}, Overflow},
        {"text", text(u" 12 "), None, 12},
        {"text with a decimal comma", text(u"12,5"), None, 12, u"de-DE"},
        {"text with another region's comma", text(u"12,5"), Mismatch},
        {"infinity", Infinity, Overflow},
        {"no value", Null{}, Mismatch},
    };
    check<std::int16_t>(shorts, 77);
    const Case<std::int32_t> longs[] = {
        {"above the largest", 2147483647.5, Overflow},
        {"the smallest", -2147483648.5, None, std::numeric_limits<std::int32_t>::min()},
    };
    check<std::int32_t>(longs, 77);
}

TEST(Coercion, ToDoubleAndDate) {
    const Case<double> doubles[] = {
        {"nothing yet", Empty{}, None, 0.0},
        {"a date and time", Date{-1.25}, None, -1.25},
        {"text", text(u"-1,25"), None, -1.25, u"fr-FR"},
    };
    check(doubles, 77.0);
    const Case<Date> dates[] = {
        {"nothing yet", Empty{}, None, {0}},
        {"a serial as text", text(u"41639.75"), None, {41639.75}},
        {"the last second of the calendar", 2958465.9999, None, {2958465.9999}},
        {"the day after the calendar", 2958466.0, Overflow},
        {"evening of the first day", -657434.75, None, {-657434.75}},
        {"the day before the calendar", -657435.0, Overflow},
        {"a written date", text(u"15/03/2013"), Mismatch},
        {"no value", Null{}, Mismatch},
    };
    check(dates, Date{77});
}

TEST(Coercion, ToText) {
    const Case<std::u16string> cases[] = {
        {"nothing yet", Empty{}, None, u""},
        {"a number", 0.1, None, u"0.1"},
        {"a number elsewhere", -12.5, None, u"-12,5", u"de-DE"},
        {"a number where digits differ", 12.5, None, u"12\u066B5", u"ar-EG"},
        {"a day serial", Date{41639.75}, None, u"41639.75"},
        {"no value", Null{}, Mismatch},
    };
    check<std::u16string>(cases, u"untouched");
}

TEST(Coercion, ListsAndObjectsComeOnlyFromTheirOwnKind) {
    StringArray list{u"old"};
    EXPECT_EQ(coerce(text(u"a"), defaultRegion(), list), Mismatch);
    EXPECT_EQ(coerce(Empty{}, defaultRegion(), list), Mismatch);
    EXPECT_EQ(list, StringArray{u"old"});
    EXPECT_EQ(coerce(StringArray{u"a", u""}, defaultRegion(), list), None);
    EXPECT_EQ(list, (StringArray{u"a", u""}));

    const ObjectPtr object = std::make_shared<Object>();
    ObjectPtr result;
    EXPECT_EQ(coerce(object, defaultRegion(), result), None);
    EXPECT_EQ(result, object);
    EXPECT_EQ(coerce(Null{}, defaultRegion(), result), Mismatch);
    EXPECT_EQ(result, object);
    EXPECT_EQ(coerce(ObjectPtr{}, defaultRegion(), result), None);
    EXPECT_EQ(result, nullptr);
}

TEST(ShortestNumber, IsPlainInTheMiddleAndScientificOutside) {
    const struct {
        double number;
        std::u16string_view text;
    } cases[] = {
        {0.0, u"0"},
        {-0.0, u"0"},
        {1e14, u"100000000000000"},
        {999999999999999.9, u"999999999999999.9"},
        {1e15, u"1E+15"},
        {-1.5e300, u"-1.5E+300"},
        {0.00001, u"0.00001"},
        {-0.000012345678901234567, u"-0.000012345678901234568"},
        {0.0000099, u"9.9E-06"},
        {5e-324, u"5E-324"},
    };
    for (const auto& [number, expected] : cases) EXPECT_EQ(toUtf8(shortestNumber(number)), toUtf8(expected));
}

TEST(PlainNumber, ReadsWhatIsANumberAndNothingElse) {
    const struct {
        std::u16string_view text;
        std::optional<double> number;
        std::u16string_view region = u"en-GB";
    } cases[] = {
        {u"\t+12.50\u00A0\u202F\r\n", 12.5},
        {u"-0", 0.0},
        {u"\u22125", -5.0},
        {u"1.5E-\u0033", 0.0015},
        {u"1e400", std::nullopt},
        {u"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {u"1.7976931348623159e308", std::nullopt},
        {u"1e-400", 0.0},
        {u"0e999999999999999999999", 0.0},
        {u"9007199254740993", 9007199254740992.0},
        {u"9007199254740993.00000000000000000000000000000000000000000000000000000000001", 9007199254740994.0},
        {u"12,5", 12.5, u"de-DE"},
        {u"\u061C-\u0661\u0662\u066B\u0665", -12.5, u"ar-EG"},
        {u"-1\u0662\u066B5", -12.5, u"ar-EG"},
        {u"\u06F1", std::nullopt, u"ar-EG"},
        {u"", std::nullopt},
        {u"e5", std::nullopt},
        {u"1,000", std::nullopt},
        {u"0x10", std::nullopt},
        {u"1\xD835", std::nullopt},
    };
    for (const auto& [text, expected, region] : cases) {
        SCOPED_TRACE(toUtf8(text));
        double number = 77;
        EXPECT_EQ(readPlainNumber(text, *findRegion(region), number), expected.has_value());
        EXPECT_EQ(number, expected.value_or(77));
        EXPECT_FALSE(number == 0 && std::signbit(number));
    }
    RegionalSettings chakma = defaultRegion();
    chakma.ZeroDigit = U'\U00011136';
    double number = 0;
    EXPECT_TRUE(readPlainNumber(u"\U00011137\U0001113F.5", chakma, number));
    EXPECT_EQ(number, 19.5);
}

TEST(PlainNumber, AMegabyteOfDigitsIsReadAtOnce) {
    constexpr std::size_t Many = 1'000'000;
    const std::u16string zeros(Many, u'0');
    const std::u16string nines(Many, u'9');
    double number = 0;
    EXPECT_FALSE(readPlainNumber(nines, defaultRegion(), number));
    EXPECT_TRUE(readPlainNumber(u"0." + nines, defaultRegion(), number));
    EXPECT_EQ(number, 1.0);
    EXPECT_TRUE(readPlainNumber(u"1" + zeros + u"e-1000000", defaultRegion(), number));
    EXPECT_EQ(number, 1.0);
    EXPECT_TRUE(readPlainNumber(u"0." + zeros + u"25e1000000", defaultRegion(), number));
    EXPECT_EQ(number, 0.25);
    EXPECT_TRUE(readPlainNumber(u"9007199254740993." + zeros + u"1", defaultRegion(), number));
    EXPECT_EQ(number, 9007199254740994.0);
    EXPECT_FALSE(readPlainNumber(zeros + u"x", defaultRegion(), number));
}
