#pragma once

#include "host/Geometry.h"
#include "host/widgets/Label.h"

namespace kel {

inline constexpr std::int32_t FieldHeight = 300;
inline constexpr std::int32_t MinimumFieldWidth = 100;
inline constexpr std::int32_t NewCaptionWidth = 1200;  ///< of a control newly placed in a designer

/// How one kind of entry control lays itself out. All values in twips.
struct LayoutRule {
    bool fixedHeight = true;          ///< exactly `FieldHeight`; otherwise at least
    bool widenAlways = true;          ///< below the minimum always; otherwise only when narrower than the caption
    bool captionFillsHeight = false;  ///< the caption is as high as the control
    std::int32_t spinnerWidth = 0;    ///< strip at the right edge, 0 without a spinner
};

struct FieldLayout {
    Size control;
    std::int32_t captionWidth = 0;
    std::int32_t captionHeight = 0;
    Rect field;
    Rect spinner;
};

/// Lays out a control that its container has given `size`; `captionWidth` is the caption's width so far.
FieldLayout layOutField(const LayoutRule& rule, Size size, std::int32_t captionWidth);

}  // namespace kel
