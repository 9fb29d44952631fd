#include "platform/win32/ole/automation/Library.h"

#include <new>

#include "platform/win32/ole/runtime/AutomationRuntime.h"

namespace kel::win32::ole {

namespace {

/// The registered default run-time object; none where `KelRuntime8` is not installed.
std::shared_ptr<Runtime> createRegisteredRuntime() {
    ComPtr<IDispatch> object;
    const HRESULT result = CoCreateInstance(toGuid(identities::Runtime), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                            object.receiveVoid());
    if (FAILED(result)) return nullptr;
    return automationRuntime(std::move(object));
}

}  // namespace

Library::Library() {
    Settings_.makeDefaultRuntime = [this] {
        auto runtime = createRegisteredRuntime();
        return runtime ? runtime : makeRuntime(Services_);
    };
}

Library& Library::instance() {
    // Never destroyed: when a process ends, the objects it would let go may be gone already.
    alignas(Library) static std::byte place[sizeof(Library)];
    static Library* const Instance = new (place) Library;
    return *Instance;
}

ITypeLib& Library::typeLibrary() {
    if (!TypeLibrary_)
        check(LoadTypeLibEx(moduleFile().c_str(), REGKIND_NONE, TypeLibrary_.receive()), "the type library is missing");
    return *TypeLibrary_.get();
}

HRESULT Library::typeInfo(REFGUID guid, ITypeInfo** out) { return typeLibrary().GetTypeInfoOfGuid(guid, out); }

bool Library::releaseIfIdle() {
    if (!Module_.idle()) return false;
    const std::shared_ptr<Runtime> last = std::move(Settings_.Runtime);
    TypeLibrary_ = {};
    return true;
}

}  // namespace kel::win32::ole
