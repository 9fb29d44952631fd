// KelControls8.ocx makes controls for hosts.

#include "library/ClassRegistry.h"
#include "library/ControlStatus.h"
#include "platform/win32/ole/com/EntryPoints.h"
#include "platform/win32/ole/control/Classes.h"

namespace kel::win32::ole {

namespace {

constexpr int FirstToolboxPicture = 101;

ClassEntry entryOf(const CreatableClass& found) {
    ClassEntry entry;
    entry.clsid = toGuid(found.identity.coclass);
    entry.programId = wide(std::u16string(LibraryName) + u"." + std::u16string(found.model.name));
    entry.description = wide(found.model.name);
    entry.isControl = found.model.isControl();
    entry.miscStatus = statusBitsOf(found.model);
    entry.toolboxPicture = FirstToolboxPicture + static_cast<int>(&found.identity - identities::Classes.data());
    return entry;
}

}  // namespace

Module& serverModule() { return Library::instance().module(); }

Maker makerOf(REFCLSID clsid) {
    const CreatableClass* const found = findClass(clsid);
    if (found == nullptr) return {};
    return [found](IUnknown* outer) { return found->make(Library::instance(), found->model, found->identity, outer); };
}

LibraryEntry libraryEntry() {
    LibraryEntry library;
    library.hasTypeLibrary = true;
    library.typeLibrary = toGuid(identities::TypeLibrary);
    library.major = identities::MajorVersion;
    library.minor = identities::MinorVersion;
    for (const CreatableClass& found : creatableClasses()) library.classes.push_back(entryOf(found));
    return library;
}

bool releaseIfIdle() { return Library::instance().releaseIfIdle(); }

}  // namespace kel::win32::ole
