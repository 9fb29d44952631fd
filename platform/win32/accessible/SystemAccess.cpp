#include "platform/win32/accessible/SystemAccess.h"

#include "platform/win32/base/Procedure.h"

namespace kel::win32 {

namespace {

template <class Function>
void find(HMODULE library, const char* name, Function*& function) {
    function = procedureOf<Function>(library, name);
}

}  // namespace

const SystemAccess& SystemAccess::instance() {
    static const SystemAccess Instance;
    return Instance;
}

/// The libraries stay: what has come out of them may be held for as long as the process lives.
SystemAccess::SystemAccess() {
    HMODULE const older = systemLibrary(L"oleacc.dll");
    find(older, "LresultFromObject", ResultOf_);
    find(older, "CreateStdAccessibleObject", StandardObject_);
    HMODULE const newer = systemLibrary(L"uiautomationcore.dll");
    find(newer, "UiaReturnRawElementProvider", ReturnProvider_);
    find(newer, "UiaHostProviderFromHwnd", HostOf_);
    find(newer, "UiaGetReservedNotSupportedValue", NotSupported_);
    find(newer, "UiaRaiseAutomationEvent", RaiseEvent_);
    find(newer, "UiaRaiseAutomationPropertyChangedEvent", RaiseProperty_);
    find(newer, "UiaClientsAreListening", IsHeard_);
}

LRESULT SystemAccess::resultOf(WPARAM wide, IAccessible& element) const {
    return ResultOf_ != nullptr ? ResultOf_(__uuidof(IAccessible), wide, &element) : 0;
}

ComPtr<IAccessible> SystemAccess::standardObject(HWND window, LONG object) const {
    ComPtr<IAccessible> found;
    if (StandardObject_ != nullptr) StandardObject_(window, object, __uuidof(IAccessible), found.receiveVoid());
    return found;
}

LRESULT SystemAccess::resultOf(HWND window, WPARAM wide, LPARAM data, IRawElementProviderSimple& provider) const {
    return ReturnProvider_ != nullptr ? ReturnProvider_(window, wide, data, &provider) : 0;
}

HRESULT SystemAccess::hostOf(HWND window, IRawElementProviderSimple** host) const {
    return HostOf_ != nullptr ? HostOf_(window, host) : S_OK;
}

HRESULT SystemAccess::notSupported(IUnknown** value) const {
    return NotSupported_ != nullptr ? NotSupported_(value) : E_NOTIMPL;
}

void SystemAccess::raise(IRawElementProviderSimple& provider, EVENTID event) const {
    if (RaiseEvent_ != nullptr) RaiseEvent_(&provider, event);
}

void SystemAccess::raise(IRawElementProviderSimple& provider, PROPERTYID property, const VARIANT& now) const {
    if (RaiseProperty_ != nullptr) RaiseProperty_(&provider, property, VARIANT{}, now);
}

void SystemAccess::forget(HWND window) const {
    if (ReturnProvider_ != nullptr && window != nullptr) ReturnProvider_(window, 0, 0, nullptr);
}

}  // namespace kel::win32
