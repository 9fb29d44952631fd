#pragma once

#include <array>
#include <cstring>

#include "platform/win32/ole/automation/DispatchPart.h"
#include "platform/win32/ole/automation/VariantConversion.h"

namespace kel::win32::ole {

/// Whether a function table passes this by reference.
template <class T>
inline constexpr bool IsReference = std::is_pointer_v<T> && !std::is_same_v<T, BSTR> &&
                                    !std::is_same_v<T, IDispatch*> && !std::is_same_v<T, SAFEARRAY*>;

/// An argument of a function table as the library's value. A null reference is the caller's error.
template <class T>
Variant argumentOf(TypeTag type, const T& argument) {
    if constexpr (IsReference<T>) {
        if (argument == nullptr) throw AutomationError(E_POINTER, "a pointer is missing");
        return argumentOf(type, *argument);
    } else if constexpr (std::is_same_v<T, VARIANT>) {
        return valueFromAutomation(argument);
    } else {
        VARIANT borrowed{};
        borrowed.vt = automationType(type);
        static_assert(sizeof argument <= sizeof borrowed.llVal);
        std::memcpy(&borrowed.llVal, &argument, sizeof argument);
        return fromAutomation(borrowed);
    }
}

/// A result on its way out; what stands there is not freed.
template <class T>
void store(const Variant& value, T& out) {
    VARIANT made{};
    toAutomation(value, made);
    if constexpr (std::is_same_v<T, VARIANT>)
        out = made;
    else
        std::memcpy(&out, &made.llVal, sizeof out);
}

/// Gives a changed by-reference argument back; arguments by value stay.
template <class T>
void giveBack(const ParameterRow& row, const Variant& before, const Variant& after, T out) {
    if constexpr (IsReference<T>) {
        if (!row.byReference || before == after) return;
        VARIANT target{};
        const VARTYPE plain = std::is_same_v<T, VARIANT*> ? VARTYPE{VT_VARIANT} : automationType(row.type);
        target.vt = static_cast<VARTYPE>(VT_BYREF | plain);
        target.byref = out;
        writeBack(after, target);
    }
}

/// The dispatch interface `Interface` of one of the library's objects, and what its function table forwards to.
template <class Interface>
class DualPart : public DispatchPart<Interface> {
public:
    using DispatchPart<Interface>::DispatchPart;

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
            const MemberRow& row = this->access().row(index);
            return finish(this->access().put(row, argumentOf(row.type, in), LOCALE_USER_DEFAULT));
        });
    }

private:
    using Access = Outcome (MemberAccess::*)(const MemberRow&, std::span<Variant>, Variant&, LCID) const;

    template <class Out, class... In>
    HRESULT forward(std::size_t index, Out* out, Access reach, In... in) noexcept {
        // The system frees what stands in a result that goes to another apartment, whatever the code says.
        if (out != nullptr) *out = {};
        return this->guarded([&] {
            const MemberRow& row = this->access().row(index);
            std::size_t next = 0;
            std::array<Variant, sizeof...(In)> values{argumentOf(row.parameterRows[next++].type, in)...};
            [[maybe_unused]] const auto before = values;
            Variant result;
            const Outcome outcome = (this->access().*reach)(row, values, result, LOCALE_USER_DEFAULT);
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
};

}  // namespace kel::win32::ole
