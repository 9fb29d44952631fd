#pragma once

#include <windows.h>

#include <utility>

namespace kel::win32 {

/// The program or library that this code is part of.
HINSTANCE thisModule();

/// Gets what the system sends to one window. Nothing it does may throw.
class WindowHandler {
public:
    virtual LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) = 0;

protected:
    ~WindowHandler() = default;
};

/// A window class while this lives; registered by name with the module. Its windows belong each to a
/// `WindowHandler`, which `CreateWindowEx` is given as its last argument and must outlive the window.
class WindowClass {
public:
    /// A class of our own.
    explicit WindowClass(const wchar_t* name);
    /// The system's class `base` with our handler in front; `baseProcedure` is what handles the rest.
    WindowClass(const wchar_t* name, const wchar_t* base);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    const wchar_t* name() const { return Name_; }
    WNDPROC baseProcedure() const { return Base_; }

private:
    const wchar_t* Name_;
    WNDPROC Base_ = nullptr;
};

/// Puts `handler`, which outlives it, in front of a window that somebody else has made. Returns what handles the rest.
WNDPROC putInFront(HWND window, WindowHandler& handler);

/// Moves the window there in its parent, if it stands elsewhere.
void placeWindow(HWND window, const RECT& place);

/// Lets nothing out into the system's frames; what fails there is lost.
template <class Action>
LRESULT atEdge(Action action) noexcept {
    try {
        return action();
    } catch (...) {
        return 0;
    }
}

}  // namespace kel::win32
