#pragma once

#include <cstdint>

/// Sizes and places in twips (1/1440 inch) unless a name says pixels.
namespace kel {

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(Size, Size) = default;
};

struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace kel
