#pragma once

#include <algorithm>
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

/// No place or extent is farther: some 300 m, beyond what any toolkit shows, and still sums of many stay numbers.
inline constexpr std::int32_t FarthestTwips = 1 << 24;

constexpr std::int32_t withinReach(std::int32_t twips) { return std::clamp(twips, -FarthestTwips, FarthestTwips); }
constexpr Size withinReach(Size size) { return {withinReach(size.width), withinReach(size.height)}; }
/// For what comes from files, scripts and containers, which may hold any number.
constexpr Rect withinReach(const Rect& rect) {
    return {withinReach(rect.left), withinReach(rect.top), withinReach(rect.width), withinReach(rect.height)};
}

}  // namespace kel
