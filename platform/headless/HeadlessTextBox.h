#pragma once

#include "host/editing/TextBoxEditor.h"
#include "platform/headless/HeadlessWidgets.h"

namespace kel::headless {

/// An edit box in memory.
class HeadlessTextBox final : public HeadlessField<TextBox>, private EditSurroundings {
public:
    HeadlessTextBox(Seat& seat, TextBoxListener& listener, bool multiLine)
        : HeadlessField(seat), Editor_(listener, *this, multiLine) {}

    std::u16string text() const override { return buffer().text(); }
    void setText(std::u16string_view text) override { Editor_.setText(text); }
    bool textEquals(std::u16string_view other) const override { return buffer().text() == other; }
    std::int32_t textLength() const override { return static_cast<std::int32_t>(buffer().text().size()); }

    std::int32_t selStart() const override { return static_cast<std::int32_t>(buffer().selection().start()); }
    void setSelStart(std::int32_t position) override { Editor_.setSelStart(position); }
    std::int32_t selLength() const override { return static_cast<std::int32_t>(buffer().selection().length()); }
    void setSelLength(std::int32_t length) override { Editor_.setSelLength(length); }
    std::u16string selText() const override { return std::u16string(buffer().selectedText()); }
    void setSelText(std::u16string_view text) override { Editor_.setSelText(text); }

    bool locked() const override { return Editor_.locked(); }
    void setLocked(bool locked) override { Editor_.setLocked(locked); }
    std::int32_t maxLength() const override { return Editor_.maxLength(); }
    void setMaxLength(std::int32_t units) override { Editor_.setMaxLength(units); }
    char16_t passwordChar() const override { return Editor_.passwordChar(); }
    void setPasswordChar(char16_t character) override { Editor_.setPasswordChar(character); }

    void gotFocus() override { Editor_.listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.listener().Text1_LostFocus(); }
    void strike(const KeyStroke& stroke) override { Editor_.strike(stroke); }
    void click(std::int32_t position) override;
    void rightClick() override { Editor_.pressMouse(MouseButton::Right); }

private:
    const EditBuffer& buffer() const { return Editor_.buffer(); }

    bool takesInput() const override { return HeadlessField::takesInput(); }
    void bufferChanged() override {}
    std::u16string clipboardText() override { return seat().input.Clipboard; }
    void setClipboardText(std::u16string_view text) override { seat().input.Clipboard.assign(text); }
    std::ptrdiff_t linesOfPage() const override;

    TextBoxEditor Editor_;
};

}  // namespace kel::headless
