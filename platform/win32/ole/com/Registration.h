#pragma once

#include <string>
#include <vector>

#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// For whom a server is registered: everybody on the machine, or the user alone, which needs no rights.
enum class Scope { Machine, User };

/// What the registry is told of a class.
struct ClassEntry {
    GUID clsid;
    std::wstring programId;  ///< without a version; the versioned one is made from it
    std::wstring description;
    bool isControl = false;
    DWORD miscStatus = 0;
    int toolboxPicture = 0;  ///< resource number, 0 for none
};

/// What it is told of the server, which is this file.
struct LibraryEntry {
    bool hasTypeLibrary = false;
    GUID typeLibrary{};
    WORD major = 0;
    WORD minor = 0;
    std::vector<ClassEntry> classes;
};

/// Writes the entries, all or, after a failure, none. Throws AutomationError.
void registerLibrary(const LibraryEntry& library, Scope scope);

/// Removes all that `registerLibrary` writes; what is not there is passed over.
void unregisterLibrary(const LibraryEntry& library, Scope scope);

}  // namespace kel::win32::ole
