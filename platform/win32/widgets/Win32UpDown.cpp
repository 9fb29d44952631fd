#include "platform/win32/widgets/Win32UpDown.h"

#include <commctrl.h>

#include "platform/win32/drawing/Symbols.h"

namespace kel::win32 {

namespace {

const WindowClass& upDownClass() {
    static const WindowClass Class(L"KelControls8.UpDown", UPDOWN_CLASSW);
    return Class;
}

}  // namespace

Win32UpDown::Win32UpDown(ControlFrame& frame, UpDown& spinner) : SystemWindow(frame, spinner), Spinner_(spinner) {
    frame.add(*this);
}

Win32UpDown::~Win32UpDown() {
    frame().remove(*this);
    destroy();
}

// ---- The window

void Win32UpDown::makeWindow() {
    if (!create(upDownClass(), (Spinner_.visible() ? WS_VISIBLE : 0U) | (looksEnabled() ? 0U : WS_DISABLED))) return;
    base(UDM_SETRANGE32, UpDown::Down, UpDown::Up);
    base(UDM_SETPOS32, 0, UpDown::Rest);
}

void Win32UpDown::outOfDate() {
    const Changes changes = Spinner_.takeChanges();
    if (!Spinner_.enabled() || !Spinner_.visible()) frame().takeInputFrom(window());
    if (changes.has(Change::Place)) place();
    if (changes.has(Change::Enabled)) frameEnabledChanged();
    if (changes.has(Change::Visible) && window() != nullptr)
        ShowWindow(window(), Spinner_.visible() ? SW_SHOWNA : SW_HIDE);
    paintAgain();
}

void Win32UpDown::frameEnabledChanged() {
    if (window() != nullptr) EnableWindow(window(), looksEnabled());
}

void Win32UpDown::draw(const Canvas& canvas) const {
    const RECT area = canvas.area(Spinner_.bounds());
    const LONG middle = (area.top + area.bottom) / 2;
    drawArrowButton(canvas, {area.left, area.top, area.right, middle}, Arrow::Up, looksEnabled());
    drawArrowButton(canvas, {area.left, middle, area.right, area.bottom}, Arrow::Down, looksEnabled());
}

// ---- What comes to the window

LRESULT Win32UpDown::handle(UINT message, WPARAM wide, LPARAM data) {
    switch (message) {
        case WM_LBUTTONDOWN: return Spinner_.takesInput() ? step(message, wide, data) : 0;
        case WM_TIMER:
            if (!isHeld()) {
                letButtonGo(wide);
                return 0;
            }
            // Not while the handler of the step before is still at it.
            return Spinner_.value() == UpDown::Rest ? step(message, wide, data) : 0;
        default: return base(message, wide, data);
    }
}

/// The listener may do away with the window, which the system's control would not survive in the middle of its
/// work: it is told afterwards.
LRESULT Win32UpDown::step(UINT message, WPARAM wide, LPARAM data) {
    Pressed_ = UpDown::Rest;
    const LRESULT result = base(message, wide, data);
    if (Pressed_ != UpDown::Rest) Spinner_.press(Pressed_ == UpDown::Up);
    return result;
}

/// True keeps the system's control from counting.
LRESULT Win32UpDown::notified(UINT notification, LPARAM details) {
    if (notification != static_cast<UINT>(UDN_DELTAPOS)) return FALSE;
    Pressed_ = reinterpret_cast<const NMUPDOWN*>(details)->iDelta > 0 ? UpDown::Up : UpDown::Down;
    return TRUE;
}

/// A window in front, such as a message box, takes the mouse away without a word to the child windows.
bool Win32UpDown::isHeld() const {
    return GetCapture() == window() && Spinner_.takesInput() && IsWindowVisible(window()) != FALSE &&
           IsWindowEnabled(GetAncestor(window(), GA_ROOT)) != FALSE;
}

/// Versions of the control differ in what makes them stop.
void Win32UpDown::letButtonGo(WPARAM timer) {
    if (GetCapture() == window()) ReleaseCapture();
    if (GetCapture() == nullptr) base(WM_CANCELMODE);
    base(WM_TIMER, timer);
    KillTimer(window(), timer);
}

}  // namespace kel::win32
