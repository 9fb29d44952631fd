#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kel {

/// What a date field makes of the day it is given.
enum class KelDateDaysFlag : std::int32_t { Allow = 0, FirstDay = 1, LastDay = 2, BirthDay = 3 };

inline constexpr std::array<std::u16string_view, 4> KelDateDaysFlagNames{u"Allow", u"FirstDay", u"LastDay",
                                                                         u"BirthDay"};

}  // namespace kel
