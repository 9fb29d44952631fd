#pragma once

#include "host/editing/EditBuffer.h"
#include "platform/headless/HeadlessWidgets.h"

namespace kel::headless {

/// An edit box in memory: carries keys, clipboard and code over to its buffer, and tells the control.
class HeadlessTextBox final : public HeadlessField<TextBox> {
public:
    HeadlessTextBox(Seat& seat, TextBoxListener& listener, bool multiLine)
        : HeadlessField(seat), Listener_(listener), Buffer_(multiLine) {}

    std::u16string text() const override { return Buffer_.text(); }
    void setText(std::u16string_view text) override { tell(Buffer_.put(text)); }
    bool textEquals(std::u16string_view other) const override { return Buffer_.text() == other; }
    std::int32_t textLength() const override { return static_cast<std::int32_t>(Buffer_.text().size()); }

    std::int32_t selStart() const override { return static_cast<std::int32_t>(Buffer_.selection().start()); }
    void setSelStart(std::int32_t position) override { Buffer_.placeCaret(position); }
    std::int32_t selLength() const override { return static_cast<std::int32_t>(Buffer_.selection().length()); }
    void setSelLength(std::int32_t length) override { Buffer_.selectLength(length); }
    std::u16string selText() const override { return std::u16string(Buffer_.selectedText()); }
    void setSelText(std::u16string_view text) override { tell(Buffer_.insert(text)); }

    bool locked() const override { return Locked_; }
    void setLocked(bool locked) override { Locked_ = locked; }

    std::int32_t maxLength() const override { return static_cast<std::int32_t>(Buffer_.maximum()); }
    void setMaxLength(std::int32_t units) override;

    char16_t passwordChar() const override { return PasswordChar_; }
    void setPasswordChar(char16_t character) override;

    void gotFocus() override { Listener_.Text1_GotFocus(); }
    void lostFocus() override { Listener_.Text1_LostFocus(); }
    void strike(const KeyStroke& stroke) override;
    void click(std::int32_t position) override;
    void rightClick() override;

private:
    void perform(EditAction action, char32_t character, bool extend);
    bool edit(EditAction action, char32_t character);
    bool cut();
    void copy();
    bool isPassword() const { return PasswordChar_ != 0 && !Buffer_.multiLine(); }
    std::ptrdiff_t linesOfPage() const;
    void tell(bool changed) {
        if (changed) Listener_.Text1_Change();
    }

    TextBoxListener& Listener_;
    EditBuffer Buffer_;
    char16_t PasswordChar_ = 0;
    bool Locked_ = false;
};

}  // namespace kel::headless
