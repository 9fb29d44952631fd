#pragma once

#include <windows.h>

#include "host/Geometry.h"

/// Between the units that hosts measure a control in: twips, pixels and hundredths of a millimetre.
namespace kel::win32::ole {

inline constexpr int TwipsPerInch = 1440;
inline constexpr int HimetricPerInch = 2540;

inline SIZEL toHimetric(Size twips) {
    return {MulDiv(twips.width, HimetricPerInch, TwipsPerInch), MulDiv(twips.height, HimetricPerInch, TwipsPerInch)};
}

inline Size fromHimetric(const SIZEL& size) {
    return {MulDiv(size.cx, TwipsPerInch, HimetricPerInch), MulDiv(size.cy, TwipsPerInch, HimetricPerInch)};
}

inline SIZE toPixels(Size twips, int twipsPerPixel) {
    return {MulDiv(twips.width, 1, twipsPerPixel), MulDiv(twips.height, 1, twipsPerPixel)};
}

inline Size fromPixels(const RECT& bounds, int twipsPerPixel) {
    return {static_cast<std::int32_t>(bounds.right - bounds.left) * twipsPerPixel,
            static_cast<std::int32_t>(bounds.bottom - bounds.top) * twipsPerPixel};
}

}  // namespace kel::win32::ole
