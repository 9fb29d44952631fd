#pragma once

#include "library/Identities.h"
#include "platform/win32/ole/automation/DispatchPart.h"

namespace kel::win32::ole {

/// Where the description of the class stands in the type library.
class ClassInfoPart final : public Part<IProvideClassInfo2, ISupportErrorInfo> {
public:
    ClassInfoPart(ComObject& whole, const ClassIdentity& identity, TypeDescriptions& types)
        : Part(whole), Identity_(identity), Types_(types) {}

    /// As that of the object.
    void* find(REFIID iid) { return asOneOf<IProvideClassInfo, IProvideClassInfo2, ISupportErrorInfo>(iid, *this); }

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        return guarded([&] { return Types_.typeInfo(toGuid(Identity_.coclass), info); });
    }
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) noexcept override {
        if (guid == nullptr) return E_POINTER;
        *guid = GUID_NULL;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || !Identity_.hasEvents()) return E_INVALIDARG;
        *guid = toGuid(Identity_.events);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
        return IsEqualGUID(iid, toGuid(Identity_.dispatch)) ? S_OK : S_FALSE;
    }

private:
    const ClassIdentity& Identity_;
    TypeDescriptions& Types_;
};

}  // namespace kel::win32::ole
