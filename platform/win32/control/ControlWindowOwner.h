#pragma once

#include <windows.h>

#include "platform/win32/base/WindowClass.h"

namespace kel {
class Control;
}

namespace kel::win32 {

namespace ole {
class Module;
}

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

    /// The window is on a screen of another resolution, whose pixels its place is to be told in.
    virtual void resolutionChanged() = 0;

    /// What readers are told of; nullptr before it is made and once it goes.
    virtual Control* accessibleControl() = 0;
    /// What they hold counts here.
    virtual ole::Module& readersModule() = 0;

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

}  // namespace kel::win32
