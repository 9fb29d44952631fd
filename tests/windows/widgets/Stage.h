#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "host/System.h"
#include "platform/win32/ControlWindow.h"

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

/// A control of one caption and one edit box, whose owner and listener write down what they are told: "enter"
/// and "exit" for the control, "got", "lost", "change", "click", "press", "down:65" and "key:97" for the box.
class Stage final : private win32::ControlWindowOwner, private TextBoxListener {
public:
    explicit Stage(bool multiLine = false);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    win32::ControlWindow& window() { return *Window_; }
    Label& label() { return *Label_; }
    TextBox& box() { return *Box_; }

    /// On the host's window, 300 by 60 pixels, the box in the right two thirds; `column` counts from the left.
    void placeOn(HWND host, int column = 0);
    /// The system's own edit window; nullptr while there is none.
    HWND edit() const;

    /// What was told since the last call, separated by blanks.
    std::wstring takeLog();

    std::function<void()> onKeyDown;  ///< runs in the handler
    std::function<void()> onLost;
    bool swallowKeys = false;

private:
    void holdOpen() override { ++Held_; }
    void letGo() override { --Held_; }
    void focusEntered() override { tell(L"enter"); }
    void focusLeft() override { tell(L"exit"); }
    void viewChanged() override {}
    void mnemonicChanged() override {}

    void Text1_Change() override { tell(L"change"); }
    void Text1_Click() override { tell(L"click"); }
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    void Text1_MouseDown(MouseButton Button) override;
    void Text1_GotFocus() override { tell(L"got"); }
    void Text1_LostFocus() override;

    void tell(const std::wstring& what);

    std::wstring Log_;
    int Held_ = 0;
    std::unique_ptr<win32::ControlWindow> Window_;
    std::unique_ptr<Label> Label_;
    std::unique_ptr<TextBox> Box_;
};

/// Serves the queue until nothing is left in it.
void settle();

/// A key through the queue and the keyboard layout.
void strike(HWND target, WPARAM code);

std::wstring textOf(HWND window);
/// What the edit window itself shows in a line, whatever it says its text is.
std::wstring shownLine(HWND edit, int line = 0);

void drag(HWND target, POINT from, POINT to);

/// Text and caret or selection as "a|b" and "a[b]c".
std::wstring drawn(const TextBox& box);

}  // namespace kel::tests
