#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "values/Digits.h"

namespace kel {

enum class DatePart : std::uint8_t { Day, Month, Year };

/// What a text says of a date, before anybody has asked whether there is such a day.
struct WrittenDate {
    static constexpr std::int32_t Unsaid = -1;

    std::array<std::int32_t, 3> parts{Unsaid, Unsaid, Unsaid};  ///< by `DatePart`
    std::size_t yearDigits = 0;

    bool has(DatePart part) const { return of(part) != Unsaid; }
    std::int32_t of(DatePart part) const { return parts[static_cast<std::size_t>(part)]; }
    std::int32_t& of(DatePart part) { return parts[static_cast<std::size_t>(part)]; }

    /// False when a part of this kind is not written with so many digits.
    bool put(DatePart part, const DigitGroup& group) {
        const std::size_t most = part == DatePart::Year ? 4 : 2;
        if (group.digits == 0 || group.digits > most) return false;
        of(part) = group.value;
        if (part == DatePart::Year) yearDigits = group.digits;
        return true;
    }
};

}  // namespace kel
