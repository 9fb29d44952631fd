#include "values/FormatExpression.h"

#include "values/Decimal.h"
#include "values/FormatExpressionNames.h"
#include "values/FormatExpressionScanner.h"
#include "values/NumberFormat.h"

namespace kel {

FormatExpression::FormatExpression(std::u16string_view expression) {
    if (const NamedFormat* named = findNamedFormat(expression)) {
        expression = named->expression;
        IsDateName_ = named->isDate;
    }
    IsGeneral_ = expression.empty();
    Date_ = DateSection(IsGeneral_ ? u"c" : expression);
    FormatScanner scanner(expression);
    for (NumberSection& section : Sections_) section = NumberSection(scanner.nextSection());
}

std::u16string FormatExpression::format(double number, const RegionalSettings& region) const {
    if (IsDateName_) return format(Date{number}, region);
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

std::u16string FormatExpression::format(Date date, const RegionalSettings& region, const WeekRule& weeks) const {
    return showsSerial() ? format(date.Serial, region) : Date_.text(date, region, weeks);
}

std::vector<ShownField> FormatExpression::fields(Date date, const RegionalSettings& region,
                                                 const WeekRule& weeks) const {
    return showsSerial() ? std::vector<ShownField>() : Date_.fields(date, region, weeks);
}

std::u16string FormatExpression::formatNull(const RegionalSettings& region) const {
    std::u16string text;
    if (has(Nothing)) Sections_[Nothing].print({}, region, text);
    return text;
}

}  // namespace kel
