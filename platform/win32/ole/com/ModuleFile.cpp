#include "platform/win32/ole/com/ModuleFile.h"

#include <windows.h>

namespace kel::win32::ole {

std::wstring moduleFile() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&moduleFile), &module);
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD units = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (units < path.size()) {
            path.resize(units);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

}  // namespace kel::win32::ole
