#include "runtime/Numbers.h"

#include "values/Decimal.h"
#include "values/NumberReader.h"

namespace kel {

double numberFromValue(const Variant& value, std::int16_t decimals, const RegionalSettings& region) {
    return roundDecimally(numberFrom(value, region), decimals);
}

double roundNumber(double number, std::int16_t decimals) { return roundDecimally(number, decimals); }

}  // namespace kel
