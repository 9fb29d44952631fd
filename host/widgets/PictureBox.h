#pragma once

#include "host/widgets/Widget.h"

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
class PictureBox final : public TextualWidget {
public:
    explicit PictureBox(WidgetHost& host) : View_(host.makeView(*this)) {}

    const std::u16string& toolTip() const { return ToolTip_; }
    void setToolTip(std::u16string_view text) { change(ToolTip_, text, Change::ToolTip); }

    /// Extent of a text in the widget's font, twips.
    Size extentOf(std::u16string_view text) const;

    /// What is shown; nothing after `clear`.
    const BarPicture& picture() const { return Picture_; }
    void clear() { draw({}); }
    /// Shows `picture` before it returns.
    void draw(BarPicture picture);

    View* view() const override { return View_.get(); }

private:
    std::u16string ToolTip_;
    BarPicture Picture_;
    std::unique_ptr<PictureView> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
