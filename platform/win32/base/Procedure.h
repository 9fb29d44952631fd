#pragma once

#include <windows.h>

#include <string>

namespace kel::win32 {

/// The system's own library of this name, whatever lies beside the program; loaded from now on. nullptr where it is
/// missing.
inline HMODULE systemLibrary(std::wstring_view name) {
    wchar_t folder[MAX_PATH] = L"";
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    return LoadLibraryW(std::wstring(folder).append(L"\\").append(name).c_str());
}

/// The function of this name in a library of the process, which older systems may not have: nullptr where it, or the
/// library, is missing.
template <class Function>
Function* procedureOf(HMODULE library, const char* name) {
    if (library == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

template <class Function>
Function* procedureOf(const wchar_t* library, const char* name) {
    return procedureOf<Function>(GetModuleHandleW(library), name);
}

}  // namespace kel::win32
