#include <cmath>

#include "controls/number/NumberText.h"
#include "fuzz/Fuzz.h"
#include "runtime/Numbers.h"
#include "values/Coercion.h"
#include "values/Decimal.h"
#include "values/NumberFormat.h"
#include "values/NumberReader.h"

namespace kel::fuzz {
namespace {

void requireReadsBack(const std::u16string& text, double number, std::int16_t decimals,
                      const RegionalSettings& region) {
    double read = 0;
    require(text.empty() || readNumber(text, region, read) == NumberReading::Number, "what is shown is a number",
            {text, region.Name});
    require(read == number && roundDecimally(read, decimals) == number, "a number reads back as it is shown",
            {text, shown(number), region.Name});
}

void checkShowing(double entered, std::int16_t decimals, const RegionalSettings& region) {
    const double number = roundDecimally(entered, decimals);
    for (const bool group : {true, false})
        for (const bool parentheses : {true, false}) {
            const NumberFormat format{.decimals = decimals, .group = group, .parentheses = parentheses};
            requireReadsBack(formatNumber(entered, format, region), number, decimals, region);
        }
    requireReadsBack(displayText(entered, decimals, true, region), number, decimals, region);
    requireReadsBack(editText(entered, decimals, region), number, decimals, region);
    requireReadsBack(generalNumber(number, region), number, decimals, region);
    std::u16string plain;
    double read = 0;
    require(coerce(Variant(entered), region, plain) == CoercionFault::None && readPlainNumber(plain, region, read) &&
                read == entered,
            "a number that becomes a text becomes the same number", {plain, region.Name});
}

/// Half of a last place is the most that rounding moves a number, and a rounded number stays.
void checkRounding(double number, std::int16_t decimals) {
    const double result = roundNumber(number, decimals);
    require(roundNumber(result, decimals) == result, "a rounded number stays", {shown(number)});
    const double most = 0.5 * std::pow(10, -decimals) + std::ldexp(std::fabs(number), -52);
    require(std::fabs(result - number) <= most, "rounding moves by half a place", {shown(number), shown(result)});
}

}  // namespace
}  // namespace kel::fuzz

/// A number, decimals, a region, a text. The number is shown in every region.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    Lines lines(data, size);
    const double number = kel::toFinite(lines.number());
    const auto decimals = static_cast<std::int16_t>(std::abs(lines.whole() % (kel::MostDecimals + 1)));
    checkRounding(number, decimals);
    for (const std::u16string_view name : kel::regionNames()) checkShowing(number, decimals, *kel::findRegion(name));
    const kel::RegionalSettings& region = lines.region();
    const kel::Variant text = lines.next();
    const double read = kel::numberFromValue(text, decimals, region);
    require(std::isfinite(read) && kel::roundNumber(read, decimals) == read, "a text is a rounded number");
    checkShowing(read, decimals, region);
    return 0;
}
