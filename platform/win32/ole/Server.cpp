// KelControls8.ocx makes controls for hosts.

#include "platform/win32/ole/com/EntryPoints.h"
#include "platform/win32/ole/control/Classes.h"
#include "platform/win32/ole/pages/Pages.h"

namespace kel::win32::ole {

Module& serverModule() { return Library::instance().module(); }

Maker makerOf(REFCLSID clsid) {
    const CreatableClass* const found = findClass(clsid);
    if (found == nullptr) return pageMaker(clsid);
    return [found](IUnknown* outer) { return found->make(Library::instance(), found->model, found->identity, outer); };
}

LibraryEntry libraryEntry() {
    LibraryEntry library;
    library.hasTypeLibrary = true;
    for (const CreatableClass& found : creatableClasses()) library.classes.push_back(registered(found.model));
    for (const PageIdentity& page : identities::Pages) library.classes.push_back(registered(page));
    return library;
}

bool releaseIfIdle() { return Library::instance().releaseIfIdle(); }

}  // namespace kel::win32::ole
