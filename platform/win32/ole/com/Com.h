#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include <cstring>
#include <string>
#include <string_view>

#include "library/Identities.h"
#include "platform/win32/base/ComPtr.h"
#include "platform/win32/base/WideText.h"

namespace kel::win32::ole {

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

/// A zero-terminated text in the memory that callers of components free. Throws std::bad_alloc.
LPOLESTR makeTaskText(std::u16string_view text);
/// nullptr when there is no memory for it.
LPOLESTR tryTaskText(std::u16string_view text) noexcept;

/// The file that this code was loaded from.
std::wstring moduleFile();

/// Throws AutomationError with this code when it is a failure.
void check(HRESULT result, const char* what);

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
