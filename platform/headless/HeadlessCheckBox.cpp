#include "platform/headless/HeadlessCheckBox.h"

namespace kel::headless {

void HeadlessCheckBox::setValue(std::int32_t value) {
    if (value == Value_) return;
    Value_ = value;
    Listener_.Check1_Click();
}

void HeadlessCheckBox::strike(const KeyStroke& stroke) {
    char32_t character = keyPressCharacter(stroke);
    if (character == 0) return;
    Listener_.Check1_KeyPress(character);
    if (character == U' ') toggle();
}

}  // namespace kel::headless
