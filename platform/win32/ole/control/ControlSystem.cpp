#include "platform/win32/ole/control/ControlSystem.h"

#include "platform/win32/base/MessageBox.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

/// Keeps the other windows of the container's frame waiting while it lives, whatever becomes of the control.
class FrameWaits {
public:
    explicit FrameWaits(ComPtr<IOleInPlaceFrame> frame) : Frame_(std::move(frame)) {
        if (Frame_) Frame_->EnableModeless(FALSE);
    }
    ~FrameWaits() {
        if (Frame_) Frame_->EnableModeless(TRUE);
    }
    FrameWaits(const FrameWaits&) = delete;
    FrameWaits& operator=(const FrameWaits&) = delete;

private:
    ComPtr<IOleInPlaceFrame> Frame_;
};

}  // namespace

void ControlSystem::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    const Hold hold(Control_.outer());
    Activation& activation = Control_.activation();
    const FrameWaits waits(activation.frame());
    const HWND owner = activation.inPlace() ? GetAncestor(Control_.window().handle(), GA_ROOT) : nullptr;
    showMessageBox(owner, prompt, style, title);
}

}  // namespace kel::win32::ole
