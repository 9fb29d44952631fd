#pragma once

#include <algorithm>
#include <cstdint>

#include "host/Geometry.h"

namespace kel {

inline constexpr std::int32_t TwipsPerInch = 1440;
/// At 96 dots to the inch, where a font of 8 points fits a caption.
inline constexpr std::int32_t ClassicTwipsPerPixel = 15;

/// So many twips on so many pixels. No whole number of twips goes on one pixel of many screens: at 192 dots per inch 15
/// go on two. Edges are rounded, not lengths, so that what touches in twips touches on the screen.
class TwipScale {
public:
    explicit constexpr TwipScale(std::int32_t twips, std::int32_t pixels = 1)
        : Twips_(std::max(twips, 1)), Pixels_(std::max(pixels, 1)) {}
    static constexpr TwipScale ofDotsPerInch(std::int32_t dots) { return TwipScale(TwipsPerInch, dots); }

    friend constexpr bool operator==(const TwipScale& one, const TwipScale& other) {
        return std::int64_t{one.Twips_} * other.Pixels_ == std::int64_t{other.Twips_} * one.Pixels_;
    }

    /// The nearest one; half way, the next.
    std::int32_t pixel(std::int32_t twips) const { return share(twips, Pixels_, Twips_); }
    /// They come back as the same pixels wherever a twip is no wider than one.
    std::int32_t twips(int pixels) const { return withinReach(share(pixels, Twips_, Pixels_)); }

    /// Not rounded.
    double exactPixels(double twips) const { return twips * Pixels_ / Twips_; }

private:
    static std::int32_t share(std::int64_t of, std::int64_t multiple, std::int64_t divisor) {
        const std::int64_t raised = 2 * of * multiple + divisor;
        const std::int64_t below = raised < 0 ? 2 * divisor - 1 : 0;
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>((raised - below) / (2 * divisor), INT32_MIN, INT32_MAX));
    }

    std::int32_t Twips_;
    std::int32_t Pixels_;
};

}  // namespace kel
