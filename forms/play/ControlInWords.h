#pragma once

#include <string>
#include <string_view>

#include "host/Geometry.h"
#include "library/Control.h"

/// What a person sees of a control, in the words of a script's output.
namespace kel {

/// `qty "1[2.5]" back 00C0FFC0 fore 00000000 caption 8000000D`,
/// `agree checked caption "I agree" fore 8000000D`, `job bar 1800 of 4500 text "40%"`
std::u16string describeLook(std::u16string_view name, Control& control);

/// `qty 120 480 4000 300 label 0 0 1200 195 field 1200 0 2560 300 spinner 3760 0 240 300`,
/// `agree 120 1200 4000 300 check 0 30 4000 240`, `job 120 1560 4500 300`
std::u16string describeLayout(std::u16string_view name, const Rect& bounds, Control& control);

/// `agree tip "What is meant"`: what comes up where the pointer rests on it
std::u16string describeTip(std::u16string_view name, Control& control);

}  // namespace kel
