#include "platform/win32/ole/com/Com.h"

#include <array>
#include <new>

#include "library/AutomationError.h"
#include "platform/win32/base/WindowClass.h"

namespace kel::win32::ole {

std::wstring textOf(const GUID& guid) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

BSTR makeBstr(std::u16string_view text) {
    BSTR made = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
    if (made == nullptr) throw std::bad_alloc();
    std::copy(text.begin(), text.end(), made);
    return made;
}

LPOLESTR tryTaskText(std::u16string_view text) noexcept {
    auto* const made = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (made != nullptr) *std::copy(text.begin(), text.end(), made) = L'\0';
    return made;
}

LPOLESTR makeTaskText(std::u16string_view text) {
    LPOLESTR const made = tryTaskText(text);
    if (made == nullptr) throw std::bad_alloc();
    return made;
}

std::wstring moduleFile() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD units = GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
        if (units < path.size()) {
            path.resize(units);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

void check(HRESULT result, const char* what) {
    if (FAILED(result)) throw AutomationError(result, what);
}

}  // namespace kel::win32::ole
