#pragma once

#include "platform/win32/ole/com/ComObject.h"
#include "platform/win32/ole/com/ObjectSafety.h"

namespace kel::win32::ole {

/// What an object promises to a host that lets strangers at it: a page's script, or properties out of a page.
class SafetyPart final : public Part<IObjectSafety> {
public:
    /// `promises` are bits of INTERFACESAFE_..., of all interfaces alike.
    SafetyPart(ComObject& whole, DWORD promises) : Part(whole), Promises_(promises) {}

    /// As that of the object.
    void* find(REFIID iid) { return asOneOf<IObjectSafety>(iid, *this); }

    /// The host lets a script call that it does not trust.
    bool hasUntrustedCaller() const { return (Enabled_ & INTERFACESAFE_FOR_UNTRUSTED_CALLER) != 0; }

    HRESULT STDMETHODCALLTYPE GetInterfaceSafetyOptions(REFIID iid, DWORD* supported,
                                                        DWORD* enabled) noexcept override {
        if (supported == nullptr || enabled == nullptr) return E_POINTER;
        const bool known = has(iid);
        *supported = known ? Promises_ : 0;
        *enabled = known ? Enabled_ : 0;
        return known ? S_OK : E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) noexcept override {
        if (!has(iid)) return E_NOINTERFACE;
        if ((mask & ~Promises_) != 0) return E_FAIL;
        Enabled_ = (Enabled_ & ~mask) | (enabled & mask);
        return S_OK;
    }

private:
    bool has(REFIID iid) {
        ComPtr<IUnknown> found;
        return SUCCEEDED(QueryInterface(iid, found.receiveVoid()));
    }

    DWORD Promises_;
    DWORD Enabled_ = 0;
};

}  // namespace kel::win32::ole
