// The four entry points of KelControls8.ocx, and installation for one user.

#include <cwchar>

#include "library/ClassRegistry.h"
#include "library/ControlStatus.h"
#include "platform/win32/ole/com/ClassFactory.h"
#include "platform/win32/ole/com/ModuleFile.h"
#include "platform/win32/ole/com/Registration.h"
#include "platform/win32/ole/control/Classes.h"

namespace {

using namespace kel::win32::ole;

constexpr int FirstToolboxPicture = 101;

ClassEntry entryOf(const CreatableClass& found) {
    ClassEntry entry;
    entry.clsid = toGuid(found.identity.coclass);
    entry.programId = kel::win32::wide(std::u16string(kel::LibraryName) + u"." + std::u16string(found.model.name));
    entry.description = kel::win32::wide(found.model.name);
    entry.isControl = found.model.isControl();
    entry.miscStatus = statusBitsOf(found.model);
    entry.toolboxPicture = FirstToolboxPicture + static_cast<int>(&found.identity - kel::identities::Classes.data());
    return entry;
}

LibraryEntry libraryEntry() {
    LibraryEntry library;
    library.file = moduleFile();
    library.hasTypeLibrary = true;
    library.typeLibrary = toGuid(kel::identities::TypeLibrary);
    library.major = kel::identities::MajorVersion;
    library.minor = kel::identities::MinorVersion;
    for (const CreatableClass& found : creatableClasses()) library.classes.push_back(entryOf(found));
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
    return atEdge([&] {
        const CreatableClass* found = findClass(clsid);
        if (found == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
        Library& library = Library::instance();
        return giveFactory(
            library.module(),
            [&library, found](IUnknown* outer) { return found->make(library, found->model, found->identity, outer); },
            iid, out);
    });
}

STDAPI DllCanUnloadNow() {
    return atEdge([] { return Library::instance().releaseIfIdle() ? S_OK : S_FALSE; });
}

STDAPI DllRegisterServer() { return install(true, Scope::Machine); }

STDAPI DllUnregisterServer() { return install(false, Scope::Machine); }

/// "user" installs for the user alone; anything else for the machine.
STDAPI DllInstall(BOOL wanted, LPCWSTR options) {
    const bool forUser = options != nullptr && _wcsicmp(options, L"user") == 0;
    return install(wanted != FALSE, forUser ? Scope::User : Scope::Machine);
}
