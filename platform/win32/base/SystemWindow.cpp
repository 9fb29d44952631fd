#include "platform/win32/base/SystemWindow.h"

#include "platform/win32/control/ControlWindowOwner.h"
#include "platform/win32/drawing/Canvas.h"

namespace kel::win32 {

bool SystemWindow::create(const WindowClass& windowClass, DWORD style, const wchar_t* title) {
    if (Handle_ != nullptr) return false;
    Base_ = windowClass.baseProcedure();
    const RECT area = pixels();
    CreateWindowExW(0, windowClass.name(), title, WS_CHILD | WS_CLIPSIBLINGS | style, area.left, area.top,
                    widthOf(area), heightOf(area), Frame_.window(), nullptr, thisModule(),
                    static_cast<WindowHandler*>(this));
    return Handle_ != nullptr;
}

void SystemWindow::destroy() {
    if (Handle_ != nullptr) DestroyWindow(Handle_);
}

void SystemWindow::place() const {
    if (Handle_ != nullptr) placeWindow(Handle_, pixels());
}

LRESULT SystemWindow::base(UINT message, WPARAM wide, LPARAM data) const {
    return CallWindowProcW(Base_, Handle_, message, wide, data);
}

LRESULT SystemWindow::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    Handle_ = window;
    return heldOpen(Frame_.owner(), [&] {
        const LRESULT result = handle(message, wide, data);
        if (message == WM_NCDESTROY) Handle_ = nullptr;
        return result;
    });
}

// ---- PaintedWindow

void PaintedWindow::invalidate() const {
    if (windowHandle() != nullptr) InvalidateRect(windowHandle(), nullptr, FALSE);
}

void PaintedWindow::paint(HDC context) const {
    const RECT place = pixels();
    draw(Canvas(context, frame().grid(), {-place.left, -place.top}));
}

LRESULT PaintedWindow::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: {
            PAINTSTRUCT painting{};
            paint(BeginPaint(windowHandle(), &painting));
            EndPaint(windowHandle(), &painting);
            return 0;
        }
        case WM_PRINTCLIENT: paint(reinterpret_cast<HDC>(wide)); return 0;
        default:
            if (const auto answered = frame().answerReader(windowHandle(), message, wide, data)) return *answered;
            return base(message, wide, data);
    }
}

}  // namespace kel::win32
