#pragma once

#include "platform/win32/accessible/AutomationInterfaces.h"
#include "platform/win32/base/ComPtr.h"
// This stands on the headers before.
#include <oleacc.h>

namespace kel::win32 {

/// What the system has for readers, looked up when somebody first asks: the libraries are not loaded before, and a
/// machine that lacks one of them has the rest.
class SystemAccess {
public:
    static const SystemAccess& instance();

    // Of MSAA; each does nothing where it is missing.

    LRESULT resultOf(WPARAM wide, IAccessible& element) const;
    /// What the system itself has to say of a window.
    ComPtr<IAccessible> standardObject(HWND window, LONG object) const;

    // Of UI Automation.

    bool hasAutomation() const { return ReturnProvider_ != nullptr; }
    /// Whether anybody listens for its events.
    bool isHeard() const { return IsHeard_ != nullptr && IsHeard_() != FALSE; }
    LRESULT resultOf(HWND window, WPARAM wide, LPARAM data, IRawElementProviderSimple& provider) const;
    HRESULT hostOf(HWND window, IRawElementProviderSimple** host) const;
    HRESULT notSupported(IUnknown** value) const;
    void raise(IRawElementProviderSimple& provider, EVENTID event) const;
    void raise(IRawElementProviderSimple& provider, PROPERTYID property, const VARIANT& now) const;
    /// The window goes, and with it whatever the system keeps for it.
    void forget(HWND window) const;

private:
    SystemAccess();

    decltype(&LresultFromObject) ResultOf_ = nullptr;
    decltype(&CreateStdAccessibleObject) StandardObject_ = nullptr;
    LRESULT(WINAPI* ReturnProvider_)(HWND, WPARAM, LPARAM, IRawElementProviderSimple*) = nullptr;
    HRESULT(WINAPI* HostOf_)(HWND, IRawElementProviderSimple**) = nullptr;
    HRESULT(WINAPI* NotSupported_)(IUnknown**) = nullptr;
    HRESULT(WINAPI* RaiseEvent_)(IRawElementProviderSimple*, EVENTID) = nullptr;
    HRESULT(WINAPI* RaiseProperty_)(IRawElementProviderSimple*, PROPERTYID, VARIANT, VARIANT) = nullptr;
    BOOL(WINAPI* IsHeard_)() = nullptr;
};

}  // namespace kel::win32
