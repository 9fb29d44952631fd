#include "platform/headless/HeadlessTextBox.h"

#include <algorithm>

namespace kel::headless {

namespace {
constexpr double LineTwipsPerPoint = 24;  ///< 20 twips a point, and the gap between lines
}

std::ptrdiff_t HeadlessTextBox::linesOfPage() const {
    const double lineHeight = std::max(fontSize(), 1.0) * LineTwipsPerPoint;
    return std::max<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(bounds().height / lineHeight), 1);
}

void HeadlessTextBox::click(std::int32_t position) {
    Editor_.setSelStart(position);
    Editor_.pressMouse(MouseButton::Left);
    Editor_.click();
}

}  // namespace kel::headless
