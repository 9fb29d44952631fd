#pragma once

#include <windows.h>

#include <memory>

#include "host/System.h"
#include "host/Widgets.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32 {

/// Whoever holds a control and its window: told what happens to the window. Any of these calls may run host
/// code, which may close, move or release the control.
class ControlWindowOwner {
public:
    /// Owner, control and window stay alive from `holdOpen` to the matching `letGo`. The window's procedures
    /// stand between the two whenever they run, and touch nothing of their own after the last `letGo`.
    virtual void holdOpen() = 0;
    virtual void letGo() = 0;

    /// The focus comes into the control from outside; said before the child widget tells its listener.
    virtual void focusEntered() = 0;
    /// The focus has gone to a window outside the control; said after the child widget told its listener.
    virtual void focusLeft() = 0;

    /// The field that has the focus can have it no longer. It goes to another field of the control where one shows in
    /// its place, else on to the host's next control, as by Tab. Where it stays, the field drops it.
    virtual void passFocusOn() = 0;

    /// The control looks other than it did: where the host paints its picture itself, it is out of date.
    virtual void viewChanged() = 0;

    /// The caption marks another character from now on.
    virtual void mnemonicChanged() = 0;

protected:
    ~ControlWindowOwner() = default;
};

/// Handles a message while its control is held open.
template <class Action>
LRESULT heldOpen(ControlWindowOwner& owner, Action action) noexcept {
    owner.holdOpen();
    const LRESULT result = atEdge(action);
    owner.letGo();
    return result;
}

/// The window of one control, a child of whatever window its host gives it, and the host of the child
/// widgets in it. Coordinates here are screen pixels; the widgets' are twips (`System::twipsPerPixel`).
///
/// Widgets and control work without any window being there: what they are given is kept and shown once there
/// is one. When a host destroys the parent with the window in it, the widgets keep what they hold, and the
/// next `handle` makes the window anew.
class ControlWindow {
public:
    ControlWindow() = default;
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    /// Destroys the window. The control, and with it every widget, is gone before.
    virtual ~ControlWindow() = default;

    virtual WidgetHost& widgets() = 0;

    /// The control's own window. There being none, it is made: hidden, in a parent that nobody sees. nullptr
    /// when the system gives no window.
    virtual HWND handle() = 0;

    /// Moves the window into `parent`, nullptr for the parent that nobody sees; makes the window if need be.
    virtual void setParent(HWND parent) = 0;

    /// Place inside the parent; nothing outside `clip`, in the same coordinates, is shown.
    virtual void place(const RECT& bounds, const RECT& clip) = 0;

    virtual void setVisible(bool visible) = 0;

    /// A disabled window takes no input, and neither do the widgets in it.
    virtual void setEnabled(bool enabled) = 0;

    /// Gives the focus to the field by code. Nothing happens while the control is disabled or hidden.
    virtual void setFocus() = 0;
    virtual bool hasFocus() const = 0;

    /// A key that the host offers before it looks at it itself. True: the field wants it (arrows, Home, End,
    /// Enter, Escape in a dropped list, the editing shortcuts) and has been given it. Tab is never wanted.
    virtual bool translateAccelerator(MSG& message) = 0;

    /// Paints the control as it stands into `bounds`, also while it has no window. `context` may be that of
    /// a metafile.
    virtual void draw(HDC context, const RECT& bounds) = 0;
};

/// `owner` and `system` outlive the window.
std::unique_ptr<ControlWindow> makeControlWindow(ControlWindowOwner& owner, System& system);

}  // namespace kel::win32
