#pragma once

#include "platform/headless/HeadlessWidgets.h"

namespace kel::headless {

/// Remembers what it shows.
class HeadlessPictureBox final : public HeadlessTextualWidget<PictureBox> {
public:
    HeadlessPictureBox() : HeadlessTextualWidget(colors::SystemWindowText) {}

    std::u16string toolTip() const override { return ToolTip_; }
    void setToolTip(std::u16string_view text) override { ToolTip_.assign(text); }

    std::int32_t textWidth(std::u16string_view text) const override {
        return static_cast<std::int32_t>(characterWidth() * static_cast<double>(text.size()));
    }
    std::int32_t textHeight(std::u16string_view /*text*/) const override {
        return static_cast<std::int32_t>(lineHeight());
    }

    const BarPicture& picture() const override { return Picture_; }
    void clear() override { Picture_ = {}; }
    void draw(const BarPicture& picture) override { Picture_ = picture; }

private:
    BarPicture Picture_;
    std::u16string ToolTip_;
};

}  // namespace kel::headless
