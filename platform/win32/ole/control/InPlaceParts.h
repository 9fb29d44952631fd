#pragma once

#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

class OleControl;

/// The control's window as its container moves it.
class InPlaceObjectPart final : public Part<IOleInPlaceObject> {
public:
    explicit InPlaceObjectPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT bounds, LPCRECT clip) noexcept override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() noexcept override;

private:
    OleControl& Control_;
};

/// The control's window as its frame talks to it while the user works in it.
class ActiveObjectPart final : public Part<IOleInPlaceActiveObject> {
public:
    explicit ActiveObjectPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) noexcept override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL activate) noexcept override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL activate) noexcept override;
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) noexcept override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) noexcept override;

private:
    OleControl& Control_;
};

}  // namespace kel::win32::ole
