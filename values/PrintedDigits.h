#pragma once

#include "values/Decimal.h"

namespace kel {

/// The shortest decimal that reads back as `size`, and of several the nearest to it, found by printing and reading:
/// slower than by the standard library's tables, and without them, which are a sixth of a component server. `size` is
/// finite and above 0; trailing zeros may remain.
Decimal printedDecimal(double size);

}  // namespace kel
