#pragma once

#include <atomic>

#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// Base of an object that has one interface and is part of no other. It begins with one reference, its maker's, and
/// ends with the last.
template <class Interface>
class SoleInterface : public Interface {
public:
    SoleInterface() = default;
    SoleInterface(const SoleInterface&) = delete;
    SoleInterface& operator=(const SoleInterface&) = delete;
    virtual ~SoleInterface() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) noexcept override {
        if (out == nullptr) return E_POINTER;
        const bool known = IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, __uuidof(Interface));
        *out = known ? static_cast<Interface*>(this) : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++References_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ULONG left = --References_;
        if (left == 0) delete this;
        return left;
    }

private:
    std::atomic<ULONG> References_ = 1;
};

}  // namespace kel::win32::ole
