#include "platform/headless/HeadlessTextBox.h"

#include <algorithm>

namespace kel::headless {

std::ptrdiff_t HeadlessTextBox::linesOfPage() const {
    return std::max<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(bounds().height / lineHeight()), 1);
}

void HeadlessTextBox::click(std::int32_t position) {
    Editor_.setSelStart(position);
    Editor_.pressMouse(MouseButton::Left);
    Editor_.click();
}

void HeadlessTextBox::drop(std::int32_t position, std::u16string_view text) {
    Editor_.setSelStart(position);
    Editor_.paste(std::u16string(text));
}

}  // namespace kel::headless
