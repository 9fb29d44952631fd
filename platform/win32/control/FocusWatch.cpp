#include "platform/win32/control/FocusWatch.h"

#include <utility>

#include "platform/win32/control/ControlWindow.h"
#include "platform/win32/widgets/ChildField.h"

namespace kel::win32 {

namespace {

constexpr const wchar_t* EnteredProperty = L"KelControls8.Entered";

HWND rootOf(HWND window) { return window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr; }

HWND enteredIn(HWND root) { return root != nullptr ? static_cast<HWND>(GetPropW(root, EnteredProperty)) : nullptr; }

bool isInside(HWND control, HWND window) {
    return window != nullptr && (window == control || IsChild(control, window) != FALSE);
}

/// Whether the focus is only away for a while: with another window in front, or another program.
bool isPassing(HWND control, HWND next) {
    const HWND root = rootOf(control);
    return next != nullptr ? rootOf(next) != root : GetActiveWindow() != root;
}

}  // namespace

UINT FocusWatch::leaveMessage() {
    static const UINT Message = RegisterWindowMessageW(L"KelControls8.Leave");
    return Message;
}

void FocusWatch::arrived(HWND control, ChildField& field) {
    resume();
    if (&field == Holder_) return;
    const HWND other = enteredIn(rootOf(control));
    if (other != nullptr && other != control) SendMessageW(other, leaveMessage(), 0, 0);
    if (Holder_ != nullptr) std::exchange(Holder_, nullptr)->widget().lostFocus();
    const auto isStillHere = [&field] { return field.window() != nullptr && GetFocus() == field.window(); };
    if (!isStillHere() || !enter(control) || !isStillHere() || Holder_ != nullptr) return;
    Holder_ = &field;
    field.widget().gotFocus();
}

bool FocusWatch::enter(HWND control) {
    if (Entered_) return true;
    Entered_ = true;
    Root_ = rootOf(control);
    SetPropW(Root_, EnteredProperty, control);
    Owner_.focusEntered();
    return Entered_;
}

void FocusWatch::departed(HWND control, HWND next) {
    if (isInside(control, next)) return;
    if (isPassing(control, next))
        suspend();
    else
        leave(control);
}

void FocusWatch::leave(HWND control) {
    resume();
    if (Holder_ != nullptr) std::exchange(Holder_, nullptr)->widget().lostFocus();
    if (!Entered_ || isInside(control, GetFocus())) return;
    unmark();
    Entered_ = false;
    Owner_.focusLeft();
}

void FocusWatch::forget(const ChildField& field) {
    if (Holder_ == &field) Holder_ = nullptr;
}

void FocusWatch::unmark() {
    resume();
    if (Root_ != nullptr) RemovePropW(std::exchange(Root_, nullptr), EnteredProperty);
}

// ---- Away for a while

void FocusWatch::suspend() {
    if (Holder_ == nullptr || Hook_ != nullptr) return;
    Hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_FOCUS, nullptr, &focusMoved, GetCurrentProcessId(),
                            GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
}

void FocusWatch::resume() {
    if (Hook_ != nullptr) UnhookWinEvent(std::exchange(Hook_, nullptr));
}

/// The window is in front again, and the focus went elsewhere in it than to where it was.
void CALLBACK FocusWatch::focusMoved(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG /*object*/,
                                     LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
    const HWND control = enteredIn(rootOf(window));
    if (control != nullptr && GetFocus() == window && !isInside(control, window))
        SendMessageW(control, leaveMessage(), 0, 0);
}

}  // namespace kel::win32
