#pragma once

#include <windows.h>

namespace kel::win32 {

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
