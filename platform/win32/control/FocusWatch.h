#pragma once

#include <windows.h>

namespace kel::win32 {

class ChildField;
class ControlWindowOwner;

/// The focus of one control, from what the system says to its windows: told to widgets and control in the order
/// they know it, the old widget, the old control, the new control, the new widget. Menus, message boxes and other
/// windows in front are no change to them.
///
/// Which control of a top-level window has been entered stands in a property of that window, so that the next one
/// can have it left first, whoever moves the focus in the middle of a change.
class FocusWatch {
public:
    explicit FocusWatch(ControlWindowOwner& owner) : Owner_(owner) {}
    ~FocusWatch() { unmark(); }
    FocusWatch(const FocusWatch&) = delete;
    FocusWatch& operator=(const FocusWatch&) = delete;

    /// The field's window in `control` has got the focus.
    void arrived(HWND control, ChildField& field);
    /// It has gone to `next`.
    void departed(HWND control, HWND next);
    /// The control is to be left where the focus is no longer in it: see `leaveMessage`.
    void leave(HWND control);

    /// The field is about to go, without a word to anybody.
    void forget(const ChildField& field);

    /// Sent to a control's window to have it left.
    static UINT leaveMessage();

private:
    bool enter(HWND control);
    void suspend();
    void resume();
    void unmark();
    static void CALLBACK focusMoved(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child, DWORD thread,
                                    DWORD time);

    ControlWindowOwner& Owner_;
    ChildField* Holder_ = nullptr;
    HWND Root_ = nullptr;           ///< the top-level window that says the control has been entered
    HWINEVENTHOOK Hook_ = nullptr;  ///< while the holder's focus is away for a while
    bool Entered_ = false;
};

}  // namespace kel::win32
