#include "values/FormatExpression.h"

#include <gtest/gtest.h>

#include <cmath>

#include "values/Text.h"

namespace kel {
namespace {

struct Case {
    std::u16string_view expression;
    double number;
    std::string_view text;
};

void check(const std::vector<Case>& cases, const RegionalSettings& region = defaultRegion()) {
    for (const Case& test : cases)
        EXPECT_EQ(toUtf8(FormatExpression(test.expression).format(test.number, region)), test.text)
            << toUtf8(test.expression) << " of " << test.number;
}

TEST(FormatExpression, FillsPlaces) {
    check({
        {u"0", 2.5, "3"},
        {u"#", 0, ""},
        {u"000", 5, "005"},
        {u"0.00", 0.005, "0.01"},
        {u"#.##", 0.5, ".5"},
        {u"#.##", 12, "12."},
        {u"0.0#0", 1.5, "1.500"},
        {u".00", 12.345, "12.35"},
        {u"0.00", -0.001, "0.00"},
        {u"(###) ###-####", 5551234, "() 555-1234"},
        {u"0", 1e21, "1000000000000000000000"},
        {u"0", std::nan(""), "0"},
    });
}

TEST(FormatExpression, GroupsAndScales) {
    check({
        {u"#,##0", 1234567.5, "1,234,568"},
        {u"0,000,000", 1234, "0,001,234"},
        {u"#,##0,,", 1234567890, "1,235"},
        {u"0.0,", 1234, "1234.0,"},
        {u"0,.0", 1234, "1.2"},
        {u", 0", 5, ", 5"},
        {u"0%", 0.125, "13%"},
        {u"\"%\"0", 0.5, "%1"},
    });
}

TEST(FormatExpression, RaisesToPowersOfTen) {
    check({
        {u"0.00E+00", 12345, "1.23E+04"},
        {u"0.00e-0", 0.00012, "1.20e-4"},
        {u"0.00E+00", 9.999, "1.00E+01"},
        {u"0.00E+00", 0, "0.00E+00"},
        {u"##0.0E+0", 12345, "123.5E+2"},
        {u"0E+000", -5e-300, "-5E-300"},
        {u"0.0E+0%", 0.5, "5.0E+1%"},
        {u"0E", 5, "5E"},
        {u"0E+0 0.#", 50, "5E+1 0.#"},
    });
}

TEST(FormatExpression, PrintsLiterals) {
    check({
        {u"$0 \"is; \"\\#", 5, "$5 is; #"},
        {u"\"open", 5, "open"},
        {u"\xD83D\xDE00 0", 5, "\U0001F600 5"},
        {u"-abc", -5, "--abc"},
    });
}

TEST(FormatExpression, ChoosesASection) {
    const std::u16string_view four = u"0.0;(0.0);\"zero\";\"none\"";
    check({
        {four, 1, "1.0"},
        {four, -1, "(1.0)"},
        {four, 0, "zero"},
        {four, -0.04, "zero"},
        {u"0;\"less\"", -0.4, "less"},
        {u"$0;;\\Z", -5, "-$5"},
        {u"$0;;\\Z", 0, "Z"},
        {u";(0)", 5, ""},
        {u"0;0;0;0;rest", 5, "5"},
    });
    EXPECT_EQ(toUtf8(FormatExpression(four).formatNull(defaultRegion())), "none");
    EXPECT_EQ(toUtf8(FormatExpression(u"0").formatNull(defaultRegion())), "");
}

TEST(FormatExpression, KnowsNamedFormats) {
    check({
        {u"", 1234.5, "1234.5"},
        {u"general number", -1234.5, "-1234.5"},
        {u"Standard", -1234.567, "-1,234.57"},
        {u"Currency", -1234.567, "(1,234.57)"},
        {u"Percent", 0.12345, "12.35%"},
        {u"SCIENTIFIC", 1234.567, "1.23E+03"},
        {u"Yes/No", -1e-9, "Yes"},
    });
}

TEST(FormatExpression, SpeaksTheRegionsLanguage) {
    check({{u"#,##0.0", -1234567.5, "-1.234.567,5"}, {u"", 1.5, "1,5"}}, *findRegion(u"de-DE"));
    check({{u"#,##0", 12345678, "1,23,45,678"}}, *findRegion(u"en-IN"));
    check({{u"#,##0", 1234, "1234"}, {u"#,##0", 12345, "12.345"}}, *findRegion(u"es-ES"));
    check({{u"0.0E-0", -0.05, "\u22125,0E\u22122"}}, *findRegion(u"sv-SE"));
    check({{u"#,##0.0", 1234.5, "١٬٢٣٤٫٥"}}, *findRegion(u"ar-EG"));
}

TEST(FormatExpression, TakesTextsOfAMillionUnits) {
    const std::u16string zeros(1 << 20, u'0');
    EXPECT_EQ(FormatExpression(zeros + u"." + zeros).format(5, defaultRegion()).size(), (2U << 20) + 1);
    EXPECT_EQ(FormatExpression(std::u16string(1 << 20, u';')).format(5, defaultRegion()), u"");
}

}  // namespace
}  // namespace kel
