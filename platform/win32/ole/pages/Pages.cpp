#include "platform/win32/ole/pages/Pages.h"

#include "library/ClassRegistry.h"
#include "platform/win32/ole/automation/Library.h"
#include "platform/win32/ole/pages/ListPage.h"
#include "platform/win32/ole/pages/RowsPage.h"

namespace kel::win32::ole {

Maker pageMaker(REFCLSID clsid) {
    for (const PageIdentity& identity : identities::Pages) {
        if (!IsEqualGUID(clsid, toGuid(identity.coclass))) continue;
        return [page = identity.page](IUnknown* outer) -> ComObject* {
            Module& module = Library::instance().module();
            if (page == DesignPage::List) return new ListPage(module, outer);
            return new RowsPage(module, outer, page);
        };
    }
    return {};
}

}  // namespace kel::win32::ole
