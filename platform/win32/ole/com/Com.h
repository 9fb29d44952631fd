#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "library/Identities.h"
#include "platform/win32/base/WideText.h"

namespace kel::win32::ole {

/// Owns one reference to an interface of an object.
template <class I>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(I* object) : Object_(object) {
        if (Object_ != nullptr) Object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.Object_) {}
    ComPtr(ComPtr&& other) noexcept : Object_(std::exchange(other.Object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(Object_, other.Object_);
        return *this;
    }
    ~ComPtr() {
        if (Object_ != nullptr) Object_->Release();
    }

    /// The interface `I` of any object; none where it has none.
    static ComPtr of(IUnknown* object) {
        ComPtr found;
        if (object != nullptr) object->QueryInterface(__uuidof(I), reinterpret_cast<void**>(&found.Object_));
        return found;
    }

    I* get() const { return Object_; }
    I* operator->() const { return Object_; }
    explicit operator bool() const { return Object_ != nullptr; }

    /// Where a call stores a new reference.
    I** receive() {
        *this = ComPtr();
        return &Object_;
    }
    void** receiveVoid() { return reinterpret_cast<void**>(receive()); }

    I* detach() { return std::exchange(Object_, nullptr); }

private:
    I* Object_ = nullptr;
};

/// Keeps an object alive across calls that may release it.
class Hold {
public:
    explicit Hold(IUnknown& object) : Object_(object) { Object_.AddRef(); }
    ~Hold() { Object_.Release(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    IUnknown& Object_;
};

inline GUID toGuid(const Guid& guid) {
    GUID out{guid.data1, guid.data2, guid.data3, {}};
    std::memcpy(out.Data4, guid.data4.data(), sizeof out.Data4);
    return out;
}

/// "{01234567-89AB-CDEF-0123-456789ABCDEF}"
std::wstring textOf(const GUID& guid);

/// A null BSTR is an empty text.
inline std::u16string textOf(BSTR text) {
    return text == nullptr ? std::u16string() : std::u16string(text, text + SysStringLen(text));
}

/// A new BSTR, the caller's to free. Throws std::bad_alloc.
BSTR makeBstr(std::u16string_view text);

/// The file that this code was loaded from.
std::wstring moduleFile();

/// Throws AutomationError with this code when it is a failure.
void check(HRESULT result, const char* what);

/// Owns a BSTR.
class OwnedBstr {
public:
    explicit OwnedBstr(std::u16string_view text) : Text_(makeBstr(text)) {}
    ~OwnedBstr() { SysFreeString(Text_); }
    OwnedBstr(const OwnedBstr&) = delete;
    OwnedBstr& operator=(const OwnedBstr&) = delete;
    BSTR get() const { return Text_; }

private:
    BSTR Text_;
};

/// Owns what a VARIANT holds.
class OwnedVariant {
public:
    OwnedVariant() { VariantInit(&Value_); }
    ~OwnedVariant() { VariantClear(&Value_); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;

    VARIANT* get() { return &Value_; }
    VARIANT& operator*() { return Value_; }
    VARIANT* operator->() { return &Value_; }

private:
    VARIANT Value_;
};

}  // namespace kel::win32::ole
