#include "platform/win32/ole/control/InPlaceParts.h"

#include "platform/win32/ole/control/OleControl.h"
#include "platform/win32/widgets/EditInput.h"

namespace kel::win32::ole {

namespace {

HRESULT windowOf(OleControl& control, HWND* window) {
    if (window == nullptr) return E_POINTER;
    *window = control.activation().inPlace() ? control.window().handle() : nullptr;
    return *window != nullptr ? S_OK : E_FAIL;
}

}  // namespace

InPlaceObjectPart::InPlaceObjectPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT InPlaceObjectPart::GetWindow(HWND* window) noexcept {
    return guarded([&] { return windowOf(Control_, window); });
}

HRESULT InPlaceObjectPart::ContextSensitiveHelp(BOOL /*enter*/) noexcept { return E_NOTIMPL; }

HRESULT InPlaceObjectPart::InPlaceDeactivate() noexcept {
    return guarded([&] {
        Control_.activation().deactivate();
        return S_OK;
    });
}

HRESULT InPlaceObjectPart::UIDeactivate() noexcept {
    return guarded([&] {
        Control_.activation().deactivateUi();
        return S_OK;
    });
}

HRESULT InPlaceObjectPart::SetObjectRects(LPCRECT bounds, LPCRECT clip) noexcept {
    if (bounds == nullptr) return E_POINTER;
    return guarded([&] { return Control_.activation().setRects(*bounds, clip != nullptr ? *clip : *bounds); });
}

HRESULT InPlaceObjectPart::ReactivateAndUndo() noexcept { return INPLACE_E_NOTUNDOABLE; }

ActiveObjectPart::ActiveObjectPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT ActiveObjectPart::GetWindow(HWND* window) noexcept {
    return guarded([&] { return windowOf(Control_, window); });
}

HRESULT ActiveObjectPart::ContextSensitiveHelp(BOOL /*enter*/) noexcept { return E_NOTIMPL; }

HRESULT ActiveObjectPart::TranslateAccelerator(LPMSG message) noexcept {
    if (message == nullptr) return E_POINTER;
    return guarded([&] {
        if (!Control_.activation().inPlace()) return S_FALSE;
        if (Control_.window().translateAccelerator(*message)) return S_OK;
        const auto site = Control_.site().as<IOleControlSite>();
        // Its bits for Shift, Ctrl and Alt are ours.
        return site && site->TranslateAccelerator(message, modifiersDown()) == S_OK ? S_OK : S_FALSE;
    });
}

HRESULT ActiveObjectPart::OnFrameWindowActivate(BOOL /*activate*/) noexcept { return S_OK; }

HRESULT ActiveObjectPart::OnDocWindowActivate(BOOL /*activate*/) noexcept { return S_OK; }

HRESULT ActiveObjectPart::ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/, BOOL /*frame*/) noexcept {
    return S_OK;
}

HRESULT ActiveObjectPart::EnableModeless(BOOL /*enable*/) noexcept { return S_OK; }

}  // namespace kel::win32::ole
