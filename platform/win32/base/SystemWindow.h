#pragma once

#include "host/widgets/Widget.h"
#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

/// The one window that a widget is, of a class that stands on one of the system's. What comes to it is handled while
/// the control is held open; `base` is what the system would do.
class SystemWindow : private WindowHandler {
public:
    SystemWindow(const SystemWindow&) = delete;
    SystemWindow& operator=(const SystemWindow&) = delete;

protected:
    SystemWindow(ControlFrame& frame, const Widget& shown) : Frame_(frame), Shown_(shown) {}
    /// The window is gone before: it is handled by what derives from this.
    ~SystemWindow() = default;

    /// nullptr while there is none.
    HWND windowHandle() const { return Handle_; }

    /// In the window of the control, at its place; nothing happens where there is one. Returns whether it has been
    /// made. None has a title unless it is given here.
    bool create(const WindowClass& windowClass, DWORD style, const wchar_t* title = L"");
    void destroy();

    ControlFrame& frame() const { return Frame_; }

    /// Where the window is to stand in that of the control.
    RECT pixels() const { return Frame_.grid().pixels(Shown_.bounds()); }
    /// Puts it there.
    void place() const;

    LRESULT base(UINT message, WPARAM wide = 0, LPARAM data = 0) const;
    virtual LRESULT handle(UINT message, WPARAM wide, LPARAM data) = 0;

private:
    LRESULT handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) override;

    ControlFrame& Frame_;
    const Widget& Shown_;
    HWND Handle_ = nullptr;
    WNDPROC Base_ = nullptr;
};

/// One that paints itself.
class PaintedWindow : protected SystemWindow {
protected:
    using SystemWindow::SystemWindow;
    ~PaintedWindow() = default;

    virtual void draw(const Canvas& canvas) const = 0;

    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;

    /// Paints at the next opportunity.
    void invalidate() const;

private:
    void paint(HDC context) const;
};

}  // namespace kel::win32
