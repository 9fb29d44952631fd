#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "host/System.h"
#include "platform/win32/base/WideText.h"
#include "platform/win32/control/ControlWindow.h"
#include "tests/Drawn.h"
#include "tests/windows/ole/Hands.h"

namespace kel::tests {

/// The field of a scene, in pixels, as most of them have it.
inline constexpr int Width = 200;
inline constexpr int Height = 20;

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

/// A control on a window of a host. What it is told is written down, "enter", "exit" and "mnemonic", and so is what the
/// listeners of the widgets in it are told.
class Scene : private win32::ControlWindowOwner {
public:
    virtual ~Scene() = default;
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    win32::ControlWindow& control() { return *Window_; }
    HostWindow& host() { return *Host_; }

    /// On a host's window; `column` counts from the left.
    void placeOn(HWND host, int column = 0);
    /// The host's window goes, with all that is in it.
    void loseHost() { Host_.reset(); }
    /// ... and another one comes.
    void changeHost();
    /// Beside the other control.
    void joinHostOf(Scene& other) {
        placeOn(other.host().window(), 1);
        loseHost();
    }

    /// Its picture from the upper left corner of a context, as large as it is.
    void drawInto(HDC context);

    /// What was told since the last call, separated by blanks.
    std::wstring takeLog();

protected:
    /// Pixels.
    Scene(int width, int height);

    /// All of the control, twips.
    Rect whole() const;
    void tell(const std::wstring& what);

private:
    void holdOpen() override {}
    void letGo() override {}
    void focusEntered() override { tell(L"enter"); }
    void focusLeft() override { tell(L"exit"); }
    void passFocusOn() override {}
    void viewChanged() override {}
    void resolutionChanged() override {}
    void mnemonicChanged() override { tell(L"mnemonic"); }
    Control* accessibleControl() override { return nullptr; }
    win32::ole::Module& readersModule() override;

    SIZE Size_;
    std::unique_ptr<HostWindow> Host_ = std::make_unique<HostWindow>();
    std::wstring Log_;
    std::unique_ptr<win32::ControlWindow> Window_;
};

/// The machine as the controls see it.
System& machine();
/// A place on its screen.
Rect twipsOf(const Rect& pixels);

/// Serves the queue for some milliseconds.
void settleFor(DWORD time);

/// A key through the queue and the keyboard layout.
void strike(HWND target, WPARAM code);

std::wstring textOf(HWND window);
/// What the edit window itself shows in a line, whatever it says its text is.
std::wstring shownLine(HWND edit, int line = 0);

/// Text and caret or selection as "a|b" and "a[b]c".
template <class Box>
std::wstring drawn(const Box& box) {
    return win32::wide(test::drawnText(box.text(), static_cast<std::size_t>(box.selStart()),
                                       static_cast<std::size_t>(box.selLength())));
}

}  // namespace kel::tests
