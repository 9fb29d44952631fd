#include "platform/win32/ole/control/ControlSystem.h"

#include "platform/win32/base/AtEnd.h"
#include "platform/win32/base/MessageBox.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

void ControlSystem::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    const ComPtr<IUnknown> held(&Control_.outer());
    const Activation& activation = Control_.activation();
    const ComPtr<IOleInPlaceFrame> frame = activation.frame();
    // The other windows of the frame wait, whatever becomes of the control.
    if (frame) frame->EnableModeless(FALSE);
    const AtEnd goOn([&] {
        if (frame) frame->EnableModeless(TRUE);
    });
    const HWND owner = activation.inPlace() ? GetAncestor(Control_.window().handle(), GA_ROOT) : nullptr;
    showMessageBox(owner, prompt, style, title);
}

}  // namespace kel::win32::ole
