#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/ole/com/Com.h"
#include "values/Variant.h"

namespace kel::win32::ole {

/// One of the library's objects that hosts can hold.
class AutomationObject {
public:
    virtual ComPtr<IDispatch> dispatch() = 0;

protected:
    ~AutomationObject() = default;
};

/// Reads and calls members of an automation object by name, a script's class instance as well as a compiled
/// object. Failures are thrown as AutomationError with the object's own code and description.
class DispatchCaller {
public:
    explicit DispatchCaller(ComPtr<IDispatch> object) : Object_(std::move(object)) {}

    IDispatch* object() const { return Object_.get(); }

    /// A property, or a method without arguments.
    Variant get(std::u16string_view name) const { return call(name, {}); }

    /// `out` names the argument that the member may change, counted from 0; -1 for none.
    Variant call(std::u16string_view name, std::span<Variant> arguments, int out = -1) const;

    void put(std::u16string_view name, const Variant& value) const;

private:
    DISPID idOf(std::u16string_view name) const;
    DISPID lookUp(std::u16string_view name) const;
    HRESULT invoke(DISPID id, WORD flags, DISPPARAMS& arguments, VARIANT* result, std::u16string_view name) const;
    bool isScript() const;

    ComPtr<IDispatch> Object_;
    /// An object keeps the identifiers that it has given, and to ask for one costs more than the call. There are few.
    mutable std::vector<std::pair<std::u16string, DISPID>> Ids_;
};

}  // namespace kel::win32::ole
