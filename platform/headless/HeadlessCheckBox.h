#pragma once

#include "platform/headless/HeadlessWidgets.h"

namespace kel::headless {

/// A check box in memory. Its mnemonic does nothing: a window that nobody sees has none.
class HeadlessCheckBox final : public HeadlessField<CheckBox> {
public:
    HeadlessCheckBox(Seat& seat, CheckBoxListener& listener) : HeadlessField(seat), Listener_(listener) {}

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override { Caption_.assign(caption); }

    std::int32_t value() const override { return Value_; }
    void setValue(std::int32_t value) override;

    void gotFocus() override {}
    void lostFocus() override {}
    void strike(const KeyStroke& stroke) override;
    void click(std::int32_t /*position*/) override { toggle(); }
    void rightClick() override {}
    void turnWheel(std::int32_t /*notches*/) override {}
    void drop(std::int32_t /*position*/, std::u16string_view /*text*/) override {}

private:
    void toggle() { setValue(Value_ == Unchecked ? Checked : Unchecked); }

    CheckBoxListener& Listener_;
    std::u16string Caption_;
    std::int32_t Value_ = Unchecked;
};

}  // namespace kel::headless
