#pragma once

#include "platform/win32/ole/automation/LateBinding.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// Late-bound access to one of the library's objects that stands in no type library.
class DispatchPart final : public Part<IDispatch> {
public:
    DispatchPart(ComObject& whole, LibraryObject& object) : Part(whole), Access_(object, nullptr) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (count == nullptr) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) noexcept override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* ids) noexcept override {
        return guarded([&] { return idsOfNames(Access_.model(), iid, names, count, ids); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID /*locale*/, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argumentError) noexcept override {
        return guarded([&] { return invoke(Access_, id, iid, flags, arguments, result, exception, argumentError); });
    }

private:
    MemberAccess Access_;
};

}  // namespace kel::win32::ole
