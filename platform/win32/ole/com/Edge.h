#pragma once

#include <new>
#include <type_traits>

#include "library/AutomationError.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// Leaves an error with a description for the caller of a member; returns `code`, or E_FAIL where that is
/// no failure.
HRESULT reportError(HRESULT code, std::u16string_view description) noexcept;
HRESULT reportError(const AutomationError& error) noexcept;

/// Runs the body of a component method; one that returns nothing succeeds. No exception gets past it.
template <class Body>
HRESULT atEdge(Body&& body) noexcept {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    } catch (const AutomationError& error) {
        return reportError(error);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace kel::win32::ole
