#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

ComObject::ComObject(Module& module, IUnknown* outer)
    : Module_(module), Inner_(*this), Outer_(outer != nullptr ? outer : &Inner_) {
    Module_.add();
}

ComObject::~ComObject() { Module_.remove(); }

HRESULT ComObject::Inner::QueryInterface(REFIID iid, void** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = IsEqualGUID(iid, IID_IUnknown) ? this : Whole_.find(iid);
    if (*out == nullptr) return E_NOINTERFACE;
    static_cast<IUnknown*>(*out)->AddRef();
    return S_OK;
}

ULONG ComObject::Inner::AddRef() noexcept { return ++References_; }

ULONG ComObject::Inner::Release() noexcept {
    const ULONG left = --References_;
    if (left == 0) {
        References_ = 1;  // what is done on the way out must not end it a second time
        delete &Whole_;
    }
    return left;
}

HRESULT giveNew(ComObject* made, REFIID iid, void** out) {
    return ComPtr<IUnknown>::adopt(&made->inner())->QueryInterface(iid, out);
}

}  // namespace kel::win32::ole
