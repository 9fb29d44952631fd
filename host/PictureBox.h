#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Widget.h"

namespace kel {

/// What a picture box shows: a text, and a bar from its left edge over its whole height. Twips.
struct BarPicture {
    std::u16string text;
    std::int32_t textLeft = 0;
    std::int32_t textTop = 0;
    std::int32_t barWidth = 0;
    std::int32_t percent = 0;  ///< for those who cannot see the bar
};

/// A surface without a border that takes no focus. The bar has the fore colour, and so has the text, save where the
/// bar is behind it: there it has the colour of the ground.
class PictureBox : public TextualWidget {
public:
    virtual std::u16string toolTip() const = 0;
    virtual void setToolTip(std::u16string_view text) = 0;

    /// Extent of a text in the widget's font, twips.
    virtual std::int32_t textWidth(std::u16string_view text) const = 0;
    virtual std::int32_t textHeight(std::u16string_view text) const = 0;

    /// What is shown; nothing after `clear`.
    virtual const BarPicture& picture() const = 0;
    virtual void clear() = 0;
    /// Shows `picture` before it returns.
    virtual void draw(const BarPicture& picture) = 0;
};

}  // namespace kel
