#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "host/System.h"
#include "platform/win32/control/ControlWindow.h"

namespace kel::tests {

/// A top-level window of the host, with a button of its own in it.
class HostWindow {
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND window() const { return Window_; }
    HWND button() const { return Button_; }

private:
    HWND Window_;
    HWND Button_;
};

/// A control of a caption, an edit box and a spinner, whose owner and listener write down what they are told:
/// "enter" and "exit" for the control, "got", "lost", "change", "click", "press", "down:65", "key:97", "paste:TEXT"
/// and "wheel:1" for the box, "step:2" for the spinner.
class Stage final : private win32::ControlWindowOwner, private TextBoxListener, private UpDownListener {
public:
    explicit Stage(bool multiLine = false);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    win32::ControlWindow& window() { return *Window_; }
    Label& label() { return *Label_; }
    TextBox& box() { return *Box_; }
    UpDown& spinner() { return *UpDown_; }
    void dropSpinner() { UpDown_.reset(); }

    /// On the host's window, 300 by 60 pixels, the box in the right two thirds, the spinner, which does not show at
    /// first, below its right end; `column` counts from the left.
    void placeOn(HWND host, int column = 0);
    /// The system's own edit window; nullptr while there is none.
    HWND edit() const;
    HWND spinnerWindow() const;

    /// What was told since the last call, separated by blanks.
    std::wstring takeLog();

    std::function<void()> onKeyDown;  ///< runs in the handler
    std::function<void()> onLost;
    std::function<void()> onStep;
    std::function<bool(std::u16string&)> onPaste;
    bool swallowKeys = false;
    bool usesWheel = true;

private:
    void holdOpen() override { ++Held_; }
    void letGo() override { --Held_; }
    void focusEntered() override { tell(L"enter"); }
    void focusLeft() override { tell(L"exit"); }
    void passFocusOn() override {}
    void viewChanged() override {}
    void mnemonicChanged() override {}

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

    void tell(const std::wstring& what);

    std::wstring Log_;
    int Held_ = 0;
    std::unique_ptr<win32::ControlWindow> Window_;
    std::unique_ptr<Label> Label_;
    std::unique_ptr<TextBox> Box_;
    std::unique_ptr<UpDown> UpDown_;
};

/// The machine as the controls see it.
System& machine();

/// Serves the queue until nothing is left in it.
void settle();
/// Serves the queue for some milliseconds.
void settleFor(DWORD time);

/// A key through the queue and the keyboard layout.
void strike(HWND target, WPARAM code);

std::wstring textOf(HWND window);
/// What the edit window itself shows in a line, whatever it says its text is.
std::wstring shownLine(HWND edit, int line = 0);

void postMouse(HWND target, UINT message, WPARAM buttons, POINT place);
void drag(HWND target, POINT from, POINT to);

/// Text and caret or selection as "a|b" and "a[b]c".
std::wstring drawn(std::u16string_view text, std::int32_t start, std::int32_t length);
template <class Box>
std::wstring drawn(const Box& box) {
    return drawn(box.text(), box.selStart(), box.selLength());
}

}  // namespace kel::tests
