#pragma once

#include "host/editing/EditedTextBox.h"
#include "platform/headless/HeadlessWidgets.h"

namespace kel::headless {

/// An edit box in memory.
class HeadlessTextBox final : public EditedTextBox<HeadlessField<TextBox>>, private EditSurroundings {
public:
    HeadlessTextBox(Seat& seat, TextBoxListener& listener, bool multiLine)
        : EditedTextBox(listener, *this, multiLine, seat) {}

    void gotFocus() override { Editor_.listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.listener().Text1_LostFocus(); }
    void strike(const KeyStroke& stroke) override { Editor_.strike(stroke); }
    void click(std::int32_t position) override;
    void rightClick() override { Editor_.pressMouse(MouseButton::Right); }
    void turnWheel(std::int32_t notches) override { Editor_.listener().Text1_Wheel(notches); }
    void drop(std::int32_t position, std::u16string_view text) override;

private:
    bool takesInput() const override { return HeadlessField::takesInput(); }
    void bufferChanged() override {}
    std::u16string clipboardText() override { return seat().input.Clipboard; }
    void setClipboardText(std::u16string_view text) override { seat().input.Clipboard.assign(text); }
    std::ptrdiff_t linesOfPage() const override;
};

}  // namespace kel::headless
