#include "platform/win32/ole/com/ClassFactory.h"

namespace kel::win32::ole {

HRESULT ClassFactory::FactoryPart::CreateInstance(IUnknown* outer, REFIID iid, void** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    // A larger object asks for the object itself, through which it reaches all else.
    if (outer != nullptr && !IsEqualGUID(iid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
    return guarded([&] {
        ComObject* const made = Maker_(outer);
        const HRESULT result = made->inner().QueryInterface(iid, out);
        made->inner().Release();
        return result;
    });
}

HRESULT ClassFactory::FactoryPart::LockServer(BOOL lock) noexcept {
    if (lock != FALSE) {
        Module_.add();
    } else {
        Module_.remove();
    }
    return S_OK;
}

HRESULT giveFactory(Module& module, Maker maker, REFIID iid, void** out) noexcept {
    return atEdge([&] {
        auto* const factory = new ClassFactory(module, std::move(maker));
        const HRESULT result = factory->inner().QueryInterface(iid, out);
        factory->inner().Release();
        return result;
    });
}

}  // namespace kel::win32::ole
