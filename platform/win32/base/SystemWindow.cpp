#include "platform/win32/base/SystemWindow.h"

#include "platform/win32/control/ControlWindowOwner.h"

namespace kel::win32 {

bool SystemWindow::create(const WindowClass& windowClass, HWND parent, DWORD style, const RECT& place) {
    if (Handle_ != nullptr) return false;
    Base_ = windowClass.baseProcedure();
    CreateWindowExW(0, windowClass.name(), L"", WS_CHILD | WS_CLIPSIBLINGS | style, place.left, place.top,
                    widthOf(place), heightOf(place), parent, nullptr, thisModule(), static_cast<WindowHandler*>(this));
    return Handle_ != nullptr;
}

void SystemWindow::destroy() {
    if (Handle_ != nullptr) DestroyWindow(Handle_);
}

void SystemWindow::placeAs(const Widget& shown) const {
    if (Handle_ != nullptr) placeWindow(Handle_, pixelsOf(shown));
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

LRESULT PaintedWindow::handle(UINT message, WPARAM wide, LPARAM data) {
    RECT area{};
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: {
            GetClientRect(windowHandle(), &area);
            PAINTSTRUCT painting{};
            paint(BeginPaint(windowHandle(), &painting), area);
            EndPaint(windowHandle(), &painting);
            return 0;
        }
        case WM_PRINTCLIENT:
            GetClientRect(windowHandle(), &area);
            paint(reinterpret_cast<HDC>(wide), area);
            return 0;
        default: return base(message, wide, data);
    }
}

}  // namespace kel::win32
