#pragma once

#include <algorithm>
#include <cstdint>

#include "host/Geometry.h"

namespace kel {

/// Twips on a screen of some resolution. Edges are rounded, not lengths, so that what touches in twips touches on the
/// screen.
class TwipScale {
public:
    explicit TwipScale(std::int32_t twipsPerPixel) : TwipsPerPixel_(std::max(twipsPerPixel, 1)) {}

    std::int32_t twipsPerPixel() const { return TwipsPerPixel_; }
    /// The nearest one; half way, the next.
    std::int32_t pixel(std::int32_t twips) const {
        const std::int64_t raised = std::int64_t{twips} + TwipsPerPixel_ / 2;
        const std::int64_t below = raised < 0 ? TwipsPerPixel_ - 1 : 0;
        return static_cast<std::int32_t>((raised - below) / TwipsPerPixel_);
    }
    std::int32_t twips(int pixels) const {
        constexpr std::int64_t Farthest = FarthestTwips;
        return static_cast<std::int32_t>(std::clamp(std::int64_t{pixels} * TwipsPerPixel_, -Farthest, Farthest));
    }

private:
    std::int32_t TwipsPerPixel_;
};

}  // namespace kel
