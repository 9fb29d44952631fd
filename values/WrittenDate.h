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

    std::int32_t day = Unsaid;
    std::int32_t month = Unsaid;
    std::int32_t year = Unsaid;
    std::size_t yearDigits = 0;

    /// False when a part of this kind is not written with so many digits.
    bool put(DatePart part, const DigitGroup& group) {
        const std::size_t most = part == DatePart::Year ? 4 : 2;
        if (group.digits == 0 || group.digits > most) return false;
        switch (part) {
            case DatePart::Day: day = group.value; break;
            case DatePart::Month: month = group.value; break;
            case DatePart::Year:
                year = group.value;
                yearDigits = group.digits;
                break;
        }
        return true;
    }
};

}  // namespace kel
