// KelRuntime8.dll makes default run-time objects for hosts.

#include "platform/win32/home/Win32Services.h"
#include "platform/win32/ole/com/EntryPoints.h"
#include "platform/win32/ole/runtime/RuntimeObject.h"

namespace kel::win32::ole {

// Neither has a destructor: objects that a process leaves behind at its end find them still there.

Module& serverModule() {
    static Module Instance;
    return Instance;
}

Maker makerOf(REFCLSID clsid) {
    static Win32RuntimeServices Services;
    if (!IsEqualGUID(clsid, toGuid(identities::Runtime))) return {};
    return [](IUnknown* outer) { return makeRuntimeObject(serverModule(), makeRuntime(Services), outer); };
}

LibraryEntry libraryEntry() {
    LibraryEntry library;
    library.classes.push_back(registeredRuntime());
    return library;
}

bool releaseIfIdle() { return serverModule().idle(); }

}  // namespace kel::win32::ole
