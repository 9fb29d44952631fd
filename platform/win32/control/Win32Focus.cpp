#include "platform/win32/control/Win32Focus.h"

#include <utility>

#include "platform/win32/base/WideText.h"
#include "platform/win32/base/WindowClass.h"
#include "platform/win32/widgets/WindowedView.h"

namespace kel::win32 {

namespace {

/// Other threads, other programs and other copies of this code, of another version perhaps, may have controls in the
/// same top-level window.
std::wstring propertyName() {
    static const std::wstring Own =
        L"KelControls8.Focus" + wideNumber(reinterpret_cast<std::uintptr_t>(thisModule())) + L'.';
    return Own + wideNumber(GetCurrentThreadId());
}

HWND rootOf(HWND window) { return window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr; }

}  // namespace

UINT Win32Focus::leaveMessage() {
    static const UINT Message = RegisterWindowMessageW(L"KelControls8.Leave");
    return Message;
}

Win32Focus* Win32Focus::of(HWND root) {
    return root != nullptr ? static_cast<Win32Focus*>(GetPropW(root, propertyName().c_str())) : nullptr;
}

std::shared_ptr<Win32Focus> Win32Focus::around(HWND control) {
    HWND const root = rootOf(control);
    Win32Focus* const known = of(root);
    return known != nullptr ? known->shared_from_this() : std::make_shared<Win32Focus>(root);
}

Win32Focus::Win32Focus(HWND root) : Root_(root) { SetPropW(Root_, propertyName().c_str(), this); }

Win32Focus::~Win32Focus() {
    resume();
    if (of(Root_) == this) RemovePropW(Root_, propertyName().c_str());
}

void Win32Focus::arrived(HWND control, const WindowedField& field) {
    resume();
    // While it was away nobody has left: the one it was in is held open for that by its own window.
    const WidgetHost* const entered = Order_.entered();
    if (entered != nullptr && entered != &field.widget().host()) SendMessageW(Control_, leaveMessage(), 0, 0);
    if (field.window() == nullptr || GetFocus() != field.window()) return;
    Control_ = control;
    Order_.arrived(field.widget());
}

void Win32Focus::departed(const WidgetHost& control, HWND next) {
    // With another window in front, or another program, it is only away for a while.
    const bool isPassing = next != nullptr ? rootOf(next) != Root_ : GetActiveWindow() != Root_;
    if (isPassing)
        suspend();
    else
        leave(control);
}

void Win32Focus::pressed(HWND control) {
    const Win32Focus* const known = of(rootOf(control));
    if (known != nullptr && known->Order_.holder() != nullptr) known->Order_.holder()->pressedAnywhere();
}

void Win32Focus::leave(const WidgetHost& control) {
    resume();
    const FieldWidget* const field = Order_.target();
    if (field != nullptr && &field->host() == &control) Order_.departed(*field, nullptr);
}

// ---- Away for a while

void Win32Focus::suspend() {
    if (Order_.holder() == nullptr || Hook_ != nullptr) return;
    Hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_FOCUS, nullptr, &focusMoved, GetCurrentProcessId(),
                            GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
}

void Win32Focus::resume() {
    if (Hook_ != nullptr) UnhookWinEvent(std::exchange(Hook_, nullptr));
}

/// The window is in front again, and the focus went elsewhere in it than to where it was.
void CALLBACK Win32Focus::focusMoved(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG /*object*/,
                                     LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
    const Win32Focus* const watch = of(rootOf(window));
    if (watch == nullptr || watch->Hook_ == nullptr || GetFocus() != window) return;
    HWND const control = watch->Control_;
    if (window != control && IsChild(control, window) == FALSE) SendMessageW(control, leaveMessage(), 0, 0);
}

}  // namespace kel::win32
