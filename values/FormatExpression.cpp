#include "values/FormatExpression.h"

#include <algorithm>
#include <iterator>

#include "values/Decimal.h"
#include "values/FormatExpressionScanner.h"
#include "values/NumberFormat.h"
#include "values/Text.h"

namespace kel {

namespace {

struct NamedFormat {
    std::u16string_view name;
    std::u16string_view expression;
};

constexpr NamedFormat NamedFormats[] = {
    {u"General Number", u""},
    {u"Fixed", u"0.00"},
    {u"Standard", u"#,##0.00"},
    {u"Currency", u"#,##0.00;(#,##0.00)"},
    {u"Percent", u"0.00%"},
    {u"Scientific", u"0.00E+00"},
    {u"Yes/No", u"\"Yes\";\"Yes\";\"No\""},
    {u"True/False", u"\"True\";\"True\";\"False\""},
    {u"On/Off", u"\"On\";\"On\";\"Off\""},
};

std::u16string_view withoutName(std::u16string_view expression) {
    const auto named =
        std::find_if(std::begin(NamedFormats), std::end(NamedFormats),
                     [expression](const NamedFormat& format) { return equalsIgnoringCase(format.name, expression); });
    return named == std::end(NamedFormats) ? expression : named->expression;
}

}  // namespace

FormatExpression::FormatExpression(std::u16string_view expression) {
    expression = withoutName(expression);
    IsGeneral_ = expression.empty();
    FormatScanner scanner(expression);
    for (NumberSection& section : Sections_) section = NumberSection(scanner.nextSection());
}

std::u16string FormatExpression::format(double number, const RegionalSettings& region) const {
    if (IsGeneral_) return generalNumber(number, region);
    Decimal decimal = shortestDecimal(number);
    SectionPlace place = Positive;
    if (decimal.Negative && has(Negative)) place = Negative;
    if (decimal.Digits == 0 || Sections_[place].showsZero(decimal)) {
        decimal = {};
        place = has(Zero) ? Zero : Positive;
    }
    if (place == Negative) decimal.Negative = false;
    std::u16string text;
    if (has(place)) Sections_[place].print(decimal, region, text);
    return text;
}

std::u16string FormatExpression::formatNull(const RegionalSettings& region) const {
    std::u16string text;
    if (has(Nothing)) Sections_[Nothing].print({}, region, text);
    return text;
}

}  // namespace kel
