#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "host/Accessible.h"
#include "platform/win32/accessible/Deed.h"
#include "platform/win32/base/AtEnd.h"
#include "platform/win32/control/ControlWindowOwner.h"

namespace kel::win32 {

/// The control that readers are told of, and its windows.
class AccessibleSource {
public:
    virtual ControlWindowOwner& owner() = 0;
    /// The control's own window.
    virtual HWND window() const = 0;
    /// That of the widget which has its value, and the focus where it can have it.
    virtual HWND speakingWindow() const = 0;
    /// Those of its parts that are things of their own, as a spinner's buttons are.
    virtual std::vector<HWND> parts() const = 0;

protected:
    ~AccessibleSource() = default;
};

using AboutControl = Deed<HRESULT(AccessibleSource& source, Control& control)>;

/// What the objects that readers hold have in common: the way to the control as long as it is there. Readers may hold
/// them longer.
class AccessibleLink {
public:
    explicit AccessibleLink(AccessibleSource& source) : Source_(&source) {}
    AccessibleLink(const AccessibleLink&) = delete;
    AccessibleLink& operator=(const AccessibleLink&) = delete;

    void cut() { Source_ = nullptr; }
    bool isCut() const { return Source_ == nullptr; }

    /// Runs `act(source, control)` while the control is held open; what it does may be the control's end. `gone` where
    /// the control is there no longer.
    HRESULT with(HRESULT gone, AboutControl act) const {
        if (Source_ == nullptr) return gone;
        ControlWindowOwner& owner = Source_->owner();
        Control* const control = owner.accessibleControl();
        if (control == nullptr) return gone;
        owner.holdOpen();
        const AtEnd letGo([&owner] { owner.letGo(); });
        return act(*Source_, *control);
    }

private:
    AccessibleSource* Source_;
};

}  // namespace kel::win32
