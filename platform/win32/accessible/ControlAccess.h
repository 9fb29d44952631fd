#pragma once

#include <optional>

#include "host/editing/EditHistory.h"
#include "platform/win32/accessible/AccessibleElement.h"

namespace kel::win32 {

/// What the windows of a control answer readers, and what these are told of its changes. It is made when somebody
/// first asks; those who never asked need not be told.
class ControlAccess {
public:
    /// Whether a window is asked for what is answered here.
    static bool isAsked(UINT message, LPARAM data);

    ControlAccess(AccessibleSource& source, ole::Module& module);
    /// What readers still hold of it stands for nothing from now on.
    ~ControlAccess();
    ControlAccess(const ControlAccess&) = delete;
    ControlAccess& operator=(const ControlAccess&) = delete;

    /// A window of the control's is asked; `wide` and `data` are those of WM_GETOBJECT.
    LRESULT answer(HWND window, WPARAM wide, LPARAM data);

    /// The control looks other than before. Readers are told when it has come to rest, and once.
    void changed();
    /// Comes to the control's window then.
    static UINT restMessage();
    void rested();

    /// The speaking window has got the focus.
    void focused() const;

private:
    struct Spoken {
        Accessible control;
        Selection selection;
        friend bool operator==(const Spoken&, const Spoken&) = default;
    };

    template <class Made, class... Arguments>
    ComPtr<Made> make(Arguments&&... arguments) const;
    void tell(const Spoken& before, const Spoken& now) const;
    void tellProvider(const Spoken& before, const Spoken& now) const;

    AccessibleSource& Source_;
    ole::Module& Module_;
    std::shared_ptr<AccessibleLink> Link_;
    ComPtr<AccessibleElement> Element_;
    std::optional<Spoken> Told_;  ///< as readers know it
    bool Pending_ = false;
    bool Provided_ = false;  ///< to UI Automation
};

}  // namespace kel::win32
