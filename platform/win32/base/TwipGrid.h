#pragma once

#include <windows.h>

#include <algorithm>
#include <cmath>

#include "host/Geometry.h"
#include "host/TwipScale.h"

namespace kel::win32 {

class TwipGrid : public TwipScale {
public:
    using TwipScale::TwipScale;
    TwipGrid(const TwipScale& scale) : TwipScale(scale) {}

    RECT pixels(const Rect& twips) const {
        return {pixel(twips.left), pixel(twips.top), pixel(twips.left + twips.width), pixel(twips.top + twips.height)};
    }

    /// Height of a font of `points`.
    int fontPixels(double points) const {
        constexpr double TwipsPerPoint = 20;
        return std::max(1, static_cast<int>(std::lround(exactPixels(points * TwipsPerPoint))));
    }
};

inline int widthOf(const RECT& area) { return static_cast<int>(area.right - area.left); }
inline int heightOf(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

}  // namespace kel::win32
