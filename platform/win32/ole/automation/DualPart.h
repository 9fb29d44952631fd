#pragma once

#include <array>

#include "platform/win32/ole/automation/LateBinding.h"
#include "platform/win32/ole/automation/VariantConversion.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// Finds the description of an interface or a class in the type library.
class TypeDescriptions {
public:
    virtual HRESULT typeInfo(REFGUID guid, ITypeInfo** out) = 0;

protected:
    ~TypeDescriptions() = default;
};

// ---- Arguments of a function table, as the library's values

Variant argumentOf(TypeTag type, BSTR value);
Variant argumentOf(TypeTag type, SHORT value);
Variant argumentOf(TypeTag type, LONG value);
Variant argumentOf(TypeTag type, double value);
Variant argumentOf(TypeTag type, const VARIANT& value);
Variant argumentOf(TypeTag type, IDispatch* value);
Variant argumentOf(TypeTag type, SAFEARRAY* value);

/// By reference. A null pointer is the caller's error.
template <class T>
Variant argumentOf(TypeTag type, T* value) {
    if (value == nullptr) throw AutomationError(E_POINTER, "a pointer is missing");
    return argumentOf(type, *value);
}

// ---- Results and by-reference arguments on their way out; what stands there is not freed

void store(const Variant& value, BSTR& out);
void store(const Variant& value, SHORT& out);
void store(const Variant& value, LONG& out);
void store(const Variant& value, double& out);
void store(const Variant& value, VARIANT& out);
void store(const Variant& value, SAFEARRAY*& out);

/// A library enumeration.
template <class T>
requires std::is_enum_v<T>
void store(const Variant& value, T& out) { out = static_cast<T>(std::get<std::int32_t>(value)); }
template <class T>
requires std::is_enum_v<T> Variant argumentOf(TypeTag type, T value) {
    return argumentOf(type, static_cast<LONG>(value));
}

/// Frees what a by-reference argument holds before it is given another value.
inline void release(BSTR& value) { SysFreeString(std::exchange(value, nullptr)); }
inline void release(VARIANT& value) { VariantClear(&value); }
inline void release(SAFEARRAY*& value) { SafeArrayDestroy(std::exchange(value, nullptr)); }
template <class T>
void release(T& /*value*/) {}

/// Whether a function table passes this by reference.
template <class T>
inline constexpr bool IsReference = std::is_pointer_v<T> && !std::is_same_v<T, BSTR> &&
                                    !std::is_same_v<T, IDispatch*> && !std::is_same_v<T, SAFEARRAY*>;

/// Gives a changed by-reference argument back; arguments by value stay.
template <class T>
void giveBack(const ParameterRow& row, const Variant& before, const Variant& after, T out) {
    if constexpr (IsReference<T>) {
        if (!row.byReference || before == after) return;
        release(*out);
        store(after, *out);
    }
}

/// The dispatch interface `Interface` of one of the library's objects: its IDispatch half, and what its
/// function table forwards to.
template <class Interface>
class DualPart : public Part<Interface> {
public:
    DualPart(ComObject& whole, LibraryObject& object, PutGate* gate, TypeDescriptions& types)
        : Part<Interface>(whole), Access_(object, gate), Types_(types) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (count == nullptr) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) noexcept override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return this->guarded([&] { return Types_.typeInfo(__uuidof(Interface), info); });
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* ids) noexcept override {
        return this->guarded([&] { return idsOfNames(Access_.model(), iid, names, count, ids); });
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID /*locale*/, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argumentError) noexcept override {
        return this->guarded(
            [&] { return invoke(Access_, id, iid, flags, arguments, result, exception, argumentError); });
    }

protected:
    template <class Out, class... In>
    HRESULT forwardGet(std::size_t index, Out* out, In... in) noexcept {
        if (out == nullptr) return E_POINTER;
        return forward(index, out, &MemberAccess::get, in...);
    }
    template <class Out, class... In>
    HRESULT forwardCall(std::size_t index, Out* out, In... in) noexcept {
        if (out == nullptr) return E_POINTER;
        return forward(index, out, &MemberAccess::call, in...);
    }
    template <class... In>
    HRESULT forwardCall(std::size_t index, std::nullptr_t /*out*/, In... in) noexcept {
        return forward(index, static_cast<LONG*>(nullptr), &MemberAccess::call, in...);
    }
    template <class In>
    HRESULT forwardPut(std::size_t index, In in) noexcept {
        return this->guarded([&] {
            const MemberRow& row = Access_.row(index);
            return finish(Access_.put(row, argumentOf(row.type, in)));
        });
    }

private:
    using Access = Outcome (MemberAccess::*)(const MemberRow&, std::span<Variant>, Variant&) const;

    template <class Out, class... In>
    HRESULT forward(std::size_t index, Out* out, Access access, In... in) noexcept {
        return this->guarded([&] {
            const MemberRow& row = Access_.row(index);
            std::size_t next = 0;
            std::array<Variant, sizeof...(In)> values{argumentOf(row.parameterRows[next++].type, in)...};
            [[maybe_unused]] const auto before = values;
            Variant result;
            const Outcome outcome = (Access_.*access)(row, values, result);
            if (FAILED(outcome.code)) return finish(outcome);
            next = 0;
            static_cast<void>((..., (giveBack(row.parameterRows[next], before[next], values[next], in), ++next)));
            if (out != nullptr) store(result, *out);
            return S_OK;
        });
    }

    static HRESULT finish(const Outcome& outcome) {
        return FAILED(outcome.code) ? reportError(outcome.code, outcome.description) : outcome.code;
    }

    MemberAccess Access_;
    TypeDescriptions& Types_;
};

}  // namespace kel::win32::ole
