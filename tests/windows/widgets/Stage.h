#pragma once

#include "tests/windows/widgets/Scene.h"

namespace kel::tests {

/// A control of a caption, an edit box in its right two thirds and, below its right end, a spinner, which does not show
/// at first; 300 by 60 pixels. Written down are "got", "lost", "change", "click", "press", "down:65", "key:97",
/// "paste:TEXT" and "wheel:1" of the box, "step:2" of the spinner.
class Stage : public Scene, private TextBoxListener, private UpDownListener {
public:
    explicit Stage(bool multiLine = false);

    Label& label() { return Label_; }
    TextBox& box() { return Box_; }
    UpDown& spinner() { return *UpDown_; }
    void dropSpinner() { UpDown_.reset(); }

    /// Gives the box the focus, and forgets what was told so far.
    void enter();

    /// The system's own windows.
    HWND edit() { return descendant(control().handle(), L"Edit"); }
    HWND spinnerWindow() { return descendant(control().handle(), L"UpDown"); }

    std::function<void()> onKeyDown;  ///< runs in the handler
    std::function<void()> onLost;
    std::function<void()> onStep;
    std::function<bool(std::u16string&)> onPaste;
    bool swallowKeys = false;
    bool usesWheel = true;

private:
    void Text1_Change() override { tell(L"change"); }
    void Text1_Click() override { tell(L"click"); }
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    bool Text1_Paste(std::u16string& Text) override;
    void Text1_MouseDown(MouseButton Button) override;
    bool Text1_UsesWheel() override { return usesWheel; }
    void Text1_Wheel(std::int32_t Notches) override;
    void Text1_GotFocus() override { tell(L"got"); }
    void Text1_LostFocus() override;
    void UpDown1_Change() override;

    Label Label_;
    TextBox Box_;
    std::unique_ptr<UpDown> UpDown_;
};

}  // namespace kel::tests
