#pragma once

#include "platform/win32/ole/automation/LateBinding.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// Finds the description of an interface or a class in the type library.
class TypeDescriptions {
public:
    virtual HRESULT typeInfo(REFGUID guid, ITypeInfo** out) = 0;

protected:
    ~TypeDescriptions() = default;
};

/// Late-bound access to one of the library's objects. `Interface` is described by `types`; it stands in no type library
/// where that is null.
template <class Interface>
class DispatchPart : public Part<Interface> {
public:
    DispatchPart(ComObject& whole, Object& object, const ClassModel& model, MemberGate* gate, TypeDescriptions* types)
        : Part<Interface>(whole), Access_(object, model, gate), Types_(types) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (count == nullptr) return E_POINTER;
        *count = Types_ != nullptr ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) noexcept override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        if (Types_ == nullptr) return E_NOTIMPL;
        if (index != 0) return DISP_E_BADINDEX;
        return this->guarded([&] { return Types_->typeInfo(__uuidof(Interface), info); });
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* ids) noexcept override {
        return this->guarded([&] { return idsOfNames(Access_.model(), iid, names, count, ids); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argumentError) noexcept override {
        return this->guarded(
            [&] { return invoke(Access_, id, iid, locale, flags, arguments, result, exception, argumentError); });
    }

protected:
    const MemberAccess& access() const { return Access_; }

private:
    MemberAccess Access_;
    TypeDescriptions* Types_;
};

/// One of the library's objects as hosts hold it, late-bound only.
class DispatchObject final : public ComObject {
public:
    DispatchObject(Module& module, ObjectPtr object, const ClassModel& model, IUnknown* outer)
        : ComObject(module, outer), Object_(std::move(object)), Dispatch_(*this, *Object_, model, nullptr, nullptr) {}

protected:
    void* find(REFIID iid) override { return asOneOf<IDispatch>(iid, Dispatch_); }

private:
    ObjectPtr Object_;
    DispatchPart<IDispatch> Dispatch_;
};

}  // namespace kel::win32::ole
