#include "fuzz/Fuzz.h"
#include "values/Coercion.h"
#include "values/FormatExpression.h"

namespace kel::fuzz {
namespace {

/// A unit of an expression shows a date and a time in words at most; besides there are the digits of one number, each
/// with a group separator.
void requireBounded(const std::u16string& text, std::u16string_view expression) {
    constexpr std::size_t MostOfUnit = 200, MostDigits = 1000;
    require(text.size() <= MostDigits + MostOfUnit * (expression.size() + 1), "a format shows so much and no more",
            {expression});
}

void checkFields(const FormatExpression& format, Date date, const std::u16string& text, std::u16string_view expression,
                 const RegionalSettings& region) {
    std::size_t end = 0;
    for (const ShownField& field : format.fields(date, region)) {
        require(field.start >= end && field.end >= field.start && field.end <= text.size(),
                "the fields of a text stand in it one after the other", {expression, text});
        end = field.end;
    }
}

void check(std::u16string_view expression, const Variant& value, const RegionalSettings& region) {
    const FormatExpression format(expression), again(expression);
    double number = 0;
    if (coerce(value, region, number) == CoercionFault::None) {
        const std::u16string text = format.format(number, region);
        require(again.format(number, region) == text, "a format shows a number one way", {expression, text});
        requireBounded(text, expression);
    }
    Date date;
    if (coerce(value, region, date) == CoercionFault::None) {
        const std::u16string text = format.format(date, region);
        require(again.format(date, region) == text, "a format shows a date one way", {expression, text});
        requireBounded(text, expression);
        checkFields(format, date, text, expression, region);
        for (std::uint8_t first = 0; first < 8; ++first)
            requireBounded(format.format(date, region, {first, WeekRule::FirstWeek::WithFourDays}), expression);
    }
    requireBounded(format.formatNull(region), expression);
}

}  // namespace
}  // namespace kel::fuzz

/// A region, a value as in a script, a format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kel::fuzz::Lines lines(data, size);
    const kel::RegionalSettings& region = lines.region();
    const kel::Variant value = lines.value();
    kel::fuzz::check(lines.rest(), value, region);
    return 0;
}
