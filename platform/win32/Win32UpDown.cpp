#include "platform/win32/Win32UpDown.h"

#include <commctrl.h>

#include "platform/win32/ControlWindow.h"

namespace kel::win32 {

namespace {

/// The system registers the base class at the latest when it is asked to.
const WindowClass& upDownClass() {
    static const WindowClass Class = [] {
        const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_UPDOWN_CLASS};
        InitCommonControlsEx(&wanted);
        return WindowClass(L"KelControls8.UpDown", UPDOWN_CLASSW);
    }();
    return Class;
}

}  // namespace

Win32UpDown::Win32UpDown(ControlFrame& frame, UpDownListener& listener) : Win32Widget(frame), Listener_(listener) {
    frame.add(*this);
}

Win32UpDown::~Win32UpDown() {
    frame().remove(*this);
    if (Window_ != nullptr) DestroyWindow(std::exchange(Window_, nullptr));
}

// ---- The window

void Win32UpDown::makeWindow() {
    if (Window_ != nullptr) return;
    const RECT place = pixels();
    CreateWindowExW(0, upDownClass().name(), L"", WS_CHILD | WS_CLIPSIBLINGS, place.left, place.top, widthOf(place),
                    heightOf(place), frame().window(), nullptr, thisModule(), static_cast<WindowHandler*>(this));
    if (Window_ == nullptr) return;
    base(UDM_SETRANGE32, Down, Up);
    base(UDM_SETPOS32, 0, Rest);
    EnableWindow(Window_, looksEnabled());
    if (Visible_) ShowWindow(Window_, SW_SHOWNA);
}

void Win32UpDown::placeChanged() {
    placeWindow(Window_);
    frame().viewChanged();
}

void Win32UpDown::setVisible(bool visible) {
    if (visible == Visible_) return;
    Visible_ = visible;
    if (!visible) frame().takeInputFrom(Window_);
    if (Window_ != nullptr) ShowWindow(Window_, visible ? SW_SHOWNA : SW_HIDE);
    frame().viewChanged();
}

void Win32UpDown::enabledChanged() {
    if (!enabled()) frame().takeInputFrom(Window_);
    frameEnabledChanged();
    frame().viewChanged();
}

void Win32UpDown::frameEnabledChanged() {
    if (Window_ != nullptr) EnableWindow(Window_, looksEnabled());
}

void Win32UpDown::draw(HDC context, POINT origin) const {
    RECT area = pixels();
    OffsetRect(&area, origin.x, origin.y);
    const LONG middle = (area.top + area.bottom) / 2;
    RECT upper{area.left, area.top, area.right, middle};
    RECT lower{area.left, middle, area.right, area.bottom};
    const UINT state = looksEnabled() ? 0 : DFCS_INACTIVE;
    DrawFrameControl(context, &upper, DFC_SCROLL, DFCS_SCROLLUP | state);
    DrawFrameControl(context, &lower, DFC_SCROLL, DFCS_SCROLLDOWN | state);
}

// ---- What comes to the window

LRESULT Win32UpDown::handleMessage(HWND window, UINT message, WPARAM wide, LPARAM data) {
    if (Window_ == nullptr) Window_ = window;
    ControlWindowOwner& owner = frame().owner();
    owner.holdOpen();
    const LRESULT result = atEdge([&] { return handle(message, wide, data); });
    owner.letGo();
    return result;
}

LRESULT Win32UpDown::base(UINT message, WPARAM wide, LPARAM data) const {
    return CallWindowProcW(upDownClass().baseProcedure(), Window_, message, wide, data);
}

LRESULT Win32UpDown::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_LBUTTONDOWN: return acceptsInput() ? step(message, wide, data) : 0;
        case WM_TIMER:
            if (!isHeld()) {
                letButtonGo(wide);
                return 0;
            }
            // Not while the handler of the step before is still at it.
            return Value_ == Rest ? step(message, wide, data) : 0;
        case WM_NCDESTROY: {
            const LRESULT result = base(message, wide, data);
            Window_ = nullptr;
            return result;
        }
        default: return base(message, wide, data);
    }
}

/// The listener may do away with the window, which the system's control would not survive in the middle of its
/// work: it is told behind that.
LRESULT Win32UpDown::step(UINT message, WPARAM wide, LPARAM data) {
    Pressed_ = Rest;
    const LRESULT result = base(message, wide, data);
    if (Pressed_ == Rest) return result;
    Value_ = Pressed_;
    Listener_.UpDown1_Change();
    return result;
}

/// True keeps the system's control from counting.
LRESULT Win32UpDown::notified(UINT notification, LPARAM details) {
    if (notification != static_cast<UINT>(UDN_DELTAPOS)) return FALSE;
    Pressed_ = reinterpret_cast<const NMUPDOWN*>(details)->iDelta > 0 ? Up : Down;
    return TRUE;
}

/// A window in front, such as a message box, takes the mouse away without a word to the child windows.
bool Win32UpDown::isHeld() const {
    return GetCapture() == Window_ && acceptsInput() && IsWindowVisible(Window_) != FALSE &&
           IsWindowEnabled(GetAncestor(Window_, GA_ROOT)) != FALSE;
}

/// Versions of the control differ in what makes them stop.
void Win32UpDown::letButtonGo(WPARAM timer) {
    if (GetCapture() == Window_) ReleaseCapture();
    if (GetCapture() == nullptr) base(WM_CANCELMODE);
    base(WM_TIMER, timer);
    KillTimer(Window_, timer);
}

}  // namespace kel::win32
