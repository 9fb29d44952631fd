// The entry points of KelRuntime8.dll, which makes default run-time objects for hosts.

#include <cwchar>
#include <new>

#include "platform/win32/home/Win32Services.h"
#include "platform/win32/ole/automation/DispatchPart.h"
#include "platform/win32/ole/com/ClassFactory.h"
#include "platform/win32/ole/com/ModuleFile.h"
#include "platform/win32/ole/com/Registration.h"
#include "platform/win32/ole/runtime/RuntimeObject.h"

namespace {

using namespace kel::win32::ole;

struct Server {
    Module module;
    kel::win32::Win32RuntimeServices services;
};

/// Outlives the objects that a process leaves behind at its end.
Server& server() {
    alignas(Server) static std::byte place[sizeof(Server)];
    static Server* const Instance = new (place) Server;
    return *Instance;
}

class RuntimeComObject final : public ComObject {
public:
    explicit RuntimeComObject(IUnknown* outer)
        : ComObject(server().module, outer),
          Object_(server().module, kel::makeRuntime(server().services)),
          Dispatch_(*this, Object_) {}

protected:
    void* find(REFIID iid) override { return asOneOf<IDispatch>(iid, Dispatch_); }

private:
    RuntimeObject Object_;
    DispatchPart Dispatch_;
};

LibraryEntry libraryEntry() {
    LibraryEntry library;
    library.file = moduleFile();
    ClassEntry entry;
    entry.clsid = toGuid(kel::identities::Runtime);
    entry.programId = L"KelRuntime8.Runtime";
    entry.description = L"KelRuntime8 run-time object";
    library.classes.push_back(entry);
    return library;
}

HRESULT install(bool wanted, Scope scope) {
    return atEdge([&] {
        if (wanted) {
            registerLibrary(libraryEntry(), scope);
        } else {
            unregisterLibrary(libraryEntry(), scope);
        }
        return S_OK;
    });
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (!IsEqualGUID(clsid, toGuid(kel::identities::Runtime))) return CLASS_E_CLASSNOTAVAILABLE;
    return giveFactory(
        server().module, [](IUnknown* outer) { return new RuntimeComObject(outer); }, iid, out);
}

STDAPI DllCanUnloadNow() { return server().module.idle() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return install(true, Scope::Machine); }

STDAPI DllUnregisterServer() { return install(false, Scope::Machine); }

/// "user" installs for the user alone; anything else for the machine.
STDAPI DllInstall(BOOL wanted, LPCWSTR options) {
    const bool forUser = options != nullptr && _wcsicmp(options, L"user") == 0;
    return install(wanted != FALSE, forUser ? Scope::User : Scope::Machine);
}
