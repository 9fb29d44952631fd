#include "controls/datetime/DateTimeField.h"

#include <cstdlib>
#include <utility>

namespace kel {

DateTimeField::DateTimeField(ControlHost& host, DateTimeRules& rules, std::u16string_view format,
                             const DateBounds& bounds)
    : Rules_(rules), Frame_(host, *this, *this), Format_(std::u16string(format)), Bounds_(bounds) {}

// ---- Properties

void DateTimeField::putFormat(std::u16string format) {
    const bool stands = showsValue();
    Format_ = FieldFormat(std::move(format));
    Frame_.report(u"Format");
    if (!stands) return CommitText();
    TextDirty_ = false;
    if (!Frame_.locked()) takeRead(dateIn(Value_));
    show(dateIn(Value_));
}

bool DateTimeField::showsValue() const { return Frame_.box().textEquals(Format_.show(dateIn(Value_), region())); }

std::optional<Date> DateTimeField::read() const {
    return dateIn(showsValue() ? Value_ : Rules_.parse(Frame_.box().text()));
}

void DateTimeField::putMinimum(Date date) {
    Bounds_.putMinimum(date);
    Frame_.report(u"MinValue");
}

void DateTimeField::putMaximum(Date date) {
    Bounds_.putMaximum(date);
    Frame_.report(u"MaxValue");
}

const Variant& DateTimeField::value() {
    if (TextDirty_) CommitText();
    return Value_;
}

void DateTimeField::putValue(const Variant& value) {
    const std::optional<Date> date = dateIn(Rules_.parse(value));
    Value_ = date ? Variant(Rules_.assigned(*date)) : Variant(Null{});
    ValueOriginal_ = Value_;
    show(dateIn(Value_));
    TextDirty_ = false;
    Frame_.report(u"Value");
}

std::optional<Date> DateTimeField::valueToStore() const {
    if (!TextDirty_ || Frame_.locked()) return dateIn(Value_);
    const std::optional<Date> date = read();
    return date ? std::optional(Rules_.committed(*date)) : std::nullopt;
}

bool DateTimeField::valid(bool showMessage) {
    const std::optional<Date> candidate = TextDirty_ ? read() : dateIn(Value_);
    if (Frame_.locked()) return true;
    const bool mayBeEmpty = !Frame_.mandatory() && (Rules_.allowsAnyText() || Frame_.box().textLength() == 0);
    const Validity validity = validityOf(candidate, Bounds_, mayBeEmpty);
    if (validity != Validity::Valid && showMessage)
        Frame_.complain(Rules_.complaint(validity), Rules_.complaintTitle());
    return validity == Validity::Valid;
}

// ---- The value and its text

void DateTimeField::CommitText() {
    TextDirty_ = false;
    if (Frame_.locked()) return;
    takeRead(read());
    show(dateIn(Value_));
}

void DateTimeField::takeRead(std::optional<Date> date) {
    Value_ = date ? Variant(Rules_.committed(*date)) : Variant(Null{});
}

void DateTimeField::step(std::int32_t delta) {
    if (Frame_.locked()) return;
    TextBox& box = Frame_.box();
    const BoxState before{.text = box.text(), .caret = static_cast<std::size_t>(box.selStart()), .value = read()};
    const FieldStep step = Rules_.step(before, delta);
    Value_ = step.value;
    box.setText(step.text);
    box.setSelStart(static_cast<std::int32_t>(step.caret));
    if (!step.isFirst && !isChangedByStep(ValueOriginal_, step.value)) return;
    Rules_.raiseChange();
    ValueOriginal_ = Value_;
}

// ---- The container

void DateTimeField::initNew() {
    Frame_.initNew(true);
    Frame_.label().setForeColor(captionColor(Frame_.mandatory()));
}

void DateTimeField::exitFocus() {
    CommitText();
    Frame_.colorOnExit();
}

// ---- Focus

/// A value that was never assigned compares as 0, one that is none never does.
bool DateTimeField::isValueOutOfRange() const {
    if (std::holds_alternative<Empty>(Value_)) return !Bounds_.contain(Date{});
    const std::optional<Date> date = dateIn(Value_);
    return date && !Bounds_.contain(*date);
}

void DateTimeField::Text1_GotFocus() {
    if (Frame_.selectOnFocus()) selectOnFocus(Frame_.box(), Frame_.host().system.tabKeyDown());
    Frame_.colorOnGotFocus();
    if (!Frame_.locked() && isValueOutOfRange()) TextDirty_ = true;
}

void DateTimeField::Text1_LostFocus() { Frame_.box().setSelStart(0); }

// ---- Keys, mouse and spinner

void DateTimeField::Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) {
    switch (keyDownEffect(KeyCode, Shift)) {
        case KeyDownEffect::StepsUp:
        case KeyDownEffect::StepsDown:
            step(KeyCode == keys::Up ? 1 : -1);
            KeyCode = 0;
            return;
        case KeyDownEffect::TogglesInsertMode: Frame_.toggleInsertMode(); return;
        case KeyDownEffect::Edits: TextDirty_ = true;
    }
}

void DateTimeField::Text1_KeyPress(char32_t& KeyAscii) {
    TextDirty_ = true;  // an input method types without a key going down
    const KeyPressEffect effect = Rules_.keyPressEffect(KeyAscii);
    if (effect != KeyPressEffect::Passes && effect != KeyPressEffect::Writes) KeyAscii = 0;
    switch (effect) {
        case KeyPressEffect::Writes: Frame_.prepareOverwriting(); return;
        case KeyPressEffect::StepsUp: step(1); return;
        case KeyPressEffect::StepsDown: step(-1); return;
        case KeyPressEffect::MovesOn: Frame_.moveOn(); return;
        case KeyPressEffect::Passes:
        case KeyPressEffect::Refused: return;
    }
}

bool DateTimeField::Text1_Paste(std::u16string& /*Text*/) {
    TextDirty_ = true;
    return true;
}

void DateTimeField::Text1_MouseDown(MouseButton Button) {
    if (Button == MouseButton::Right) TextDirty_ = true;  // the context menu pastes and deletes
}

void DateTimeField::Text1_Wheel(std::int32_t Notches) {
    for (std::int32_t left = std::abs(Notches); left > 0; --left) step(Notches > 0 ? 1 : -1);
}

void DateTimeField::UpDown1_Change() {
    const int direction = Frame_.answerSpinner();
    if (direction == 0) return;
    step(direction);
    Frame_.restSpinner();
}

}  // namespace kel
