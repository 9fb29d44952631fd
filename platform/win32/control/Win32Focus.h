#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "host/focus/FocusOrder.h"

namespace kel::win32 {

class WindowedField;

/// What the system says of the focus to the windows of our controls in one top-level window, for those who are told of
/// it. Menus, message boxes and other windows in front are no change. The controls share it by a property of the
/// top-level window, whoever has put them there.
class Win32Focus : public std::enable_shared_from_this<Win32Focus> {
public:
    /// Of the top-level window that `control` is in.
    static std::shared_ptr<Win32Focus> around(HWND control);

    explicit Win32Focus(HWND root);
    ~Win32Focus();
    Win32Focus(const Win32Focus&) = delete;
    Win32Focus& operator=(const Win32Focus&) = delete;

    /// The field's window in `control` has got the focus.
    void arrived(HWND control, const WindowedField& field);
    /// It has gone from the control to `next`, which is none of its windows.
    void departed(const WidgetHost& control, HWND next);
    /// The control is to be left: see `leaveMessage`.
    void leave(const WidgetHost& control);

    /// A mouse button went down in `control`, where no field takes it.
    static void pressed(HWND control);

    /// About to go, without a word to anybody.
    void forget(const FieldWidget& field) { Order_.forget(field); }
    void forget(const WidgetHost& control) { Order_.forget(control); }

    /// Sent to a control's window to have it left.
    static UINT leaveMessage();

private:
    static Win32Focus* of(HWND root);
    void suspend();
    void resume();
    static void CALLBACK focusMoved(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child, DWORD thread,
                                    DWORD time);

    HWND Root_;
    HWND Control_ = nullptr;        ///< where the focus came last
    HWINEVENTHOOK Hook_ = nullptr;  ///< while the holder's focus is away for a while
    FocusOrder Order_;
};

}  // namespace kel::win32
