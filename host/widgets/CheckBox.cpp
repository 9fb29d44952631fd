#include "host/widgets/CheckBox.h"

namespace kel {

CheckBox::CheckBox(WidgetHost& host, CheckBoxListener& listener)
    : FieldWidget(host, colors::SystemButtonFace), Listener_(listener), View_(host.makeView(*this)) {}

/// The listener may do anything, and is told last.
void CheckBox::setValue(std::int32_t value) {
    if (value == Value_) return;
    Value_ = value;
    changed(Change::Value);
    Listener_.Check1_Click();
}

// ---- What a person does

CheckBox::Key CheckBox::keyDown(const KeyStroke& stroke) { return typed(keyPressCharacter(stroke)); }

CheckBox::Key CheckBox::typed(char32_t character) {
    if (!canBeStruck(character) || !takesInput()) return Key::Ignored;
    Listener_.Check1_KeyPress(character);
    if (character == 0) return Key::Swallowed;
    return character == U' ' && takesInput() ? Key::Presses : Key::Ignored;
}

bool CheckBox::takePress() {
    setFocus();
    return hasFocus() && takesInput();
}

void CheckBox::release() {
    if (takesInput() && Listener_.Check1_Toggle()) setValue(Value_ == Unchecked ? Checked : Unchecked);
}

void CheckBox::press() {
    if (takePress()) release();
}

/// Where no time passes, a key is up again at once.
bool CheckBox::strike(const KeyStroke& stroke) {
    const Key deed = keyDown(stroke);
    if (deed == Key::Presses) release();
    return deed != Key::Ignored;
}

}  // namespace kel
