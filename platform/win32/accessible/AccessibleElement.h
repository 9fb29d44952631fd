#pragma once

#include "platform/win32/accessible/AccessibleSource.h"
#include "platform/win32/accessible/SystemAccess.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32 {

/// A control as MSAA sees it: one thing, whichever of its windows is asked. What no control knows of itself, its place
/// among the windows and what of it can be seen, the system's own object answers.
class AccessibleElement final : public ole::ComObject, public ole::Part<IAccessible, IOleWindow, IServiceProvider> {
public:
    AccessibleElement(ole::Module& module, std::shared_ptr<AccessibleLink> link);

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) noexcept override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argumentError) noexcept override;

    // IAccessible: what it is
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT which, BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT which, BSTR* value) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT which, BSTR* description) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT which, VARIANT* role) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT which, VARIANT* state) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT which, BSTR* help) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT which, LONG* topic) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT which, BSTR* shortcut) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT which, BSTR* action) noexcept override;

    // ... where it is
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT which, IDispatch** child) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) noexcept override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT which) noexcept override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* hit) noexcept override;

    // ... and what is done to it
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT which) noexcept override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT which) noexcept override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT which, BSTR name) noexcept override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT which, BSTR value) noexcept override;

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) noexcept override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) noexcept override;

    // IServiceProvider: from here to UI Automation
    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** out) noexcept override;

protected:
    void* find(REFIID iid) override;

private:
    /// Runs `act` with the control and its windows, where `which` is the control itself.
    HRESULT about(const VARIANT& which, AboutControl act) noexcept;
    /// Runs `say`, which gives a text, with the control's description.
    HRESULT tell(const VARIANT& which, BSTR* out, Deed<std::u16string(const Accessible&)> say) noexcept;
    /// Has the system's own object do it.
    HRESULT standard(Deed<HRESULT(IAccessible&)> act) noexcept;

    std::shared_ptr<AccessibleLink> Link_;
    ComPtr<IAccessible> Standard_;  ///< of the control's own window
};

}  // namespace kel::win32
