#pragma once

#include <vector>

#include "library/Registration.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// For whom a server is registered: everybody on the machine, or the user alone, which needs no rights.
enum class Scope { Machine, User };

/// What the registry is told of the server, which is this file.
struct LibraryEntry {
    bool hasTypeLibrary = false;
    std::vector<RegisteredClass> classes;
};

/// Writes the entries, all or, after a failure, none. Throws AutomationError.
void registerLibrary(const LibraryEntry& library, Scope scope);

/// Removes all that `registerLibrary` writes, but names of classes that the server of the other bitness still has; what
/// is not there is passed over. Throws AutomationError with the first failure once all has been tried.
void unregisterLibrary(const LibraryEntry& library, Scope scope);

}  // namespace kel::win32::ole
