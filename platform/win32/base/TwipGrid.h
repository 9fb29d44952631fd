#pragma once

#include <windows.h>

#include <algorithm>
#include <cmath>

#include "host/Geometry.h"
#include "host/TwipScale.h"

namespace kel::win32 {

inline constexpr int TwipsPerInch = 1440;

class TwipGrid : public TwipScale {
public:
    using TwipScale::TwipScale;

    RECT pixels(const Rect& twips) const {
        return {pixel(twips.left), pixel(twips.top), pixel(twips.left + twips.width), pixel(twips.top + twips.height)};
    }

    /// Height of a font of `points`.
    int fontPixels(double points) const {
        constexpr double TwipsPerPoint = 20;
        return std::max(1, static_cast<int>(std::lround(points * TwipsPerPoint / twipsPerPixel())));
    }
};

inline std::int32_t twipsPerPixelAt(int dotsPerInch) {
    constexpr int Usual = 15;
    return dotsPerInch > 0 ? std::max(1, (TwipsPerInch + dotsPerInch / 2) / dotsPerInch) : Usual;
}

inline int widthOf(const RECT& area) { return static_cast<int>(area.right - area.left); }
inline int heightOf(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

}  // namespace kel::win32
