#pragma once

#include <cstdint>

namespace kel {

/// What a date field makes of the day it is given.
enum class KelDateDaysFlag : std::int32_t { Allow = 0, FirstDay = 1, LastDay = 2, BirthDay = 3 };

}  // namespace kel
