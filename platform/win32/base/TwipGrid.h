#pragma once

#include <windows.h>

#include <algorithm>
#include <cmath>

#include "host/Geometry.h"

namespace kel::win32 {

/// Twips on a screen of some resolution. Edges are rounded, not lengths: what touches in twips touches in pixels.
class TwipGrid {
public:
    explicit TwipGrid(std::int32_t twipsPerPixel) : TwipsPerPixel_(std::max(twipsPerPixel, 1)) {}

    int pixel(std::int32_t twips) const {
        const std::int32_t raised = twips + TwipsPerPixel_ / 2;
        return raised >= 0 ? raised / TwipsPerPixel_ : -((-raised + TwipsPerPixel_ - 1) / TwipsPerPixel_);
    }

    RECT pixels(const Rect& twips) const {
        return {pixel(twips.left), pixel(twips.top), pixel(twips.left + twips.width), pixel(twips.top + twips.height)};
    }

    std::int32_t twips(int pixels) const { return pixels * TwipsPerPixel_; }

    /// Height of a font of `points`.
    int fontPixels(double points) const {
        constexpr double TwipsPerPoint = 20;
        return std::max(1, static_cast<int>(std::lround(points * TwipsPerPoint / TwipsPerPixel_)));
    }

private:
    std::int32_t TwipsPerPixel_;
};

inline int widthOf(const RECT& area) { return static_cast<int>(area.right - area.left); }
inline int heightOf(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

}  // namespace kel::win32
