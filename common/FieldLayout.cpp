#include "common/FieldLayout.h"

#include <algorithm>

namespace kel {

FieldLayout layOutField(const LayoutRule& rule, Size size, std::int32_t captionWidth) {
    FieldLayout layout;
    layout.control.height = rule.fixedHeight ? FieldHeight : std::max(size.height, FieldHeight);

    const std::int32_t minimum = MinimumFieldWidth + rule.spinnerWidth;
    // Measured before widening: a caption wider than a control of 50 twips takes all 100 of the widened one.
    const bool captionOverhangs = size.width - rule.spinnerWidth < captionWidth;
    const bool widen = size.width < minimum && (rule.widenAlways || captionOverhangs);
    layout.control.width = widen ? minimum : size.width;

    const std::int32_t inner = layout.control.width - rule.spinnerWidth;
    const bool narrowCaption = rule.widenAlways ? inner < captionWidth : captionOverhangs;
    layout.captionWidth = narrowCaption ? inner : captionWidth;
    layout.captionHeight = rule.captionFillsHeight ? layout.control.height : CaptionHeight;
    layout.field = {layout.captionWidth, 0, inner - layout.captionWidth, layout.control.height};
    layout.spinner = {inner, 0, rule.spinnerWidth, layout.control.height};
    return layout;
}

}  // namespace kel
