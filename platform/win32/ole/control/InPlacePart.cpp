#include "platform/win32/ole/control/ControlParts.h"
#include "platform/win32/ole/control/OleControl.h"
#include "platform/win32/widgets/EditInput.h"

namespace kel::win32::ole {

namespace {

class InPlacePart final : public ControlPart<IOleInPlaceObject, IOleInPlaceActiveObject> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override {
        if (IsEqualGUID(iid, IID_IOleWindow)) return static_cast<IOleInPlaceObject*>(this);
        return asOneOf<IOleInPlaceObject, IOleInPlaceActiveObject>(iid, *this);
    }

    // ---- IOleWindow

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override {
        if (window == nullptr) return E_POINTER;
        return guarded([&] {
            *window = Control_.activation().inPlace() ? Control_.window().handle() : nullptr;
            return *window != nullptr ? S_OK : E_FAIL;
        });
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) noexcept override { return E_NOTIMPL; }

    // ---- IOleInPlaceObject

    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override {
        return guarded([&] { Control_.activation().deactivate(); });
    }
    HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override {
        return guarded([&] { Control_.activation().deactivateUi(); });
    }
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT bounds, LPCRECT clip) noexcept override {
        if (bounds == nullptr) return E_POINTER;
        return guarded([&] { return Control_.activation().setRects(*bounds, clip != nullptr ? *clip : *bounds); });
    }
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override { return INPLACE_E_NOTUNDOABLE; }

    // ---- IOleInPlaceActiveObject

    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) noexcept override {
        if (message == nullptr) return E_POINTER;
        return guarded([&] {
            if (!Control_.activation().inPlace()) return S_FALSE;
            if (Control_.window().translateAccelerator(*message)) return S_OK;
            const auto site = Control_.site().as<IOleControlSite>();
            // Its bits for Shift, Ctrl and Alt are ours.
            return site && site->TranslateAccelerator(message, modifiersDown()) == S_OK ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL /*activate*/) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL /*activate*/) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/,
                                           BOOL /*frame*/) noexcept override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL /*enable*/) noexcept override { return S_OK; }
};

}  // namespace

std::unique_ptr<ControlInterfaces> makeInPlacePart(OleControl& control) {
    return std::make_unique<InPlacePart>(control);
}

}  // namespace kel::win32::ole
