#pragma once

#include <cstddef>
#include <string_view>

namespace kel {

/// From `start` on, what reached to `end` before reaches to `newEnd` now; nothing else differs.
struct TextDifference {
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t newEnd = 0;

    bool isNone() const { return start == end && start == newEnd; }
};

/// Of the places where an edit may have been made, the one that leaves the caret at its end. Never cuts a
/// surrogate pair.
TextDifference differenceOf(std::u16string_view before, std::u16string_view now, std::size_t caret);

}  // namespace kel
