#include "host/widgets/Widget.h"

#include <algorithm>

#include "host/focus/Mnemonic.h"

namespace kel {

void Widget::changed(Changes changes) {
    const bool isNews = Changes_.none();
    Changes_ |= changes;
    if (View* const seen = view(); seen != nullptr && isNews) seen->outOfDate();
}

void Widget::move(const Rect& bounds) { change(Bounds_, bounds, Change::Place); }

void Widget::setEnabled(bool enabled) {
    if (enabled == Enabled_) return;
    Enabled_ = enabled;
    if (!enabled) barred();
    changed(Change::Enabled);
}

void TextualWidget::setFont(std::u16string_view name, double size) {
    if (name == Font_.name && size == Font_.size) return;
    Font_.name.assign(name);
    Font_.size = size;
    changed(Change::Font);
}

void TextualWidget::changeCaption(std::u16string& kept, std::u16string_view caption) {
    if (caption == kept) return;
    const bool keepsMnemonic = mnemonicIn(caption) == mnemonicIn(kept);
    kept.assign(caption);
    changed(keepsMnemonic ? Changes(Change::Caption) : Change::Caption | Change::Mnemonic);
}

void TextualWidget::refresh() {
    if (View* const seen = view()) seen->paintAgain();
}

void FieldWidget::setVisible(bool visible) {
    if (visible == Visible_) return;
    Visible_ = visible;
    if (!visible) barred();
    changed(Change::Visible);
}

Size TextualWidget::extentUnseen(std::size_t characters) const {
    constexpr double UsualSize = 8;
    constexpr double WidthOfPoint = 10;
    constexpr double HeightOfPoint = 24;
    const double size = Font_.size > 0 ? std::max(Font_.size, 1.0) : UsualSize;
    const double width = std::min<double>(size * WidthOfPoint * static_cast<double>(characters), FarthestTwips);
    return {static_cast<std::int32_t>(width), static_cast<std::int32_t>(size * HeightOfPoint)};
}

}  // namespace kel
