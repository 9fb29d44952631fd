#pragma once

#include <windows.h>

#include "host/Geometry.h"
#include "host/TwipScale.h"

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

inline SIZE toPixels(Size twips, const TwipScale& scale) {
    return {scale.pixel(twips.width), scale.pixel(twips.height)};
}

inline Size fromPixels(const RECT& bounds, const TwipScale& scale) {
    return {scale.twips(static_cast<int>(bounds.right - bounds.left)),
            scale.twips(static_cast<int>(bounds.bottom - bounds.top))};
}

}  // namespace kel::win32::ole
