#include "host/focus/FocusOrder.h"

#include <utility>

namespace kel {

void FocusOrder::arrived(FieldWidget& field) {
    if (&field != target()) move(&field, &field.host());
}

void FocusOrder::departed(const FieldWidget& field, const WidgetHost* next) {
    if (&field == target()) move(nullptr, next);
}

void FocusOrder::forget(const FieldWidget& field) {
    if (Holder_ == &field) Holder_ = nullptr;
    if (Next_ != &field) return;
    Next_ = nullptr;
    ++Turn_;
}

void FocusOrder::forget(const WidgetHost& control) {
    if (Entered_ == &control) Entered_ = nullptr;
    if (Holder_ != nullptr && &Holder_->host() == &control) forget(*Holder_);
    if (Next_ != nullptr && &Next_->host() == &control) forget(*Next_);
}

void FocusOrder::move(FieldWidget* field, const WidgetHost* control) {
    const std::uint32_t turn = ++Turn_;
    Next_ = field;
    if (!leaveHolder(turn) || !leaveControl(control, turn)) return;
    if (field == nullptr || !enterControl(field->host(), turn)) return;
    Holder_ = std::exchange(Next_, nullptr);
    Holder_->gotFocus();
}

// Each step returns false when somebody it told has moved the focus.

bool FocusOrder::leaveHolder(std::uint32_t turn) {
    if (Holder_ != nullptr) std::exchange(Holder_, nullptr)->lostFocus();
    return turn == Turn_;
}

bool FocusOrder::leaveControl(const WidgetHost* next, std::uint32_t turn) {
    if (Entered_ != nullptr && Entered_ != next) std::exchange(Entered_, nullptr)->controlLeft();
    return turn == Turn_;
}

bool FocusOrder::enterControl(WidgetHost& control, std::uint32_t turn) {
    if (Entered_ == nullptr) {
        Entered_ = &control;
        control.controlEntered();
    }
    return turn == Turn_;
}

}  // namespace kel
