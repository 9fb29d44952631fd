#pragma once

#include <cstdint>

#include "values/RegionalSettings.h"
#include "values/Variant.h"

namespace kel {

/// What `value` is as a number in the region, rounded half away from zero on its shortest text. Text that is
/// no number, Null and objects are 0; a number too large is the largest double of its sign.
double numberFromValue(const Variant& value, std::int16_t decimals, const RegionalSettings& region);

/// Rounded in the same way; infinities are the largest double, and what is not a number is 0.
double roundNumber(double number, std::int16_t decimals);

}  // namespace kel
