#include "platform/win32/ole/automation/DispatchCaller.h"

#include <dispex.h>

#include "library/AutomationError.h"
#include "platform/win32/base/AtEnd.h"
#include "platform/win32/ole/automation/VariantConversion.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

/// The failure that the object describes.
[[noreturn]] void raise(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
    const HRESULT code =
        exception.scode != 0 ? exception.scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, exception.wCode);
    throw AutomationError(code, toUtf8(textOf(exception.bstrDescription)));
}

[[noreturn]] void raise(HRESULT code, std::u16string_view name) {
    throw AutomationError(code, "the run-time object's " + toUtf8(name) + " failed");
}

/// The arguments as a call wants them, last first. A variable that the member may change is handed over by
/// reference: to scripts, which know no other, as a variant; to compiled objects as its own type.
class CallArguments {
public:
    CallArguments(std::span<const Variant> values, int out, bool script)
        : Values_(values.size()), Passed_(values.size()) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            toAutomation(values[i], *Values_[i]);
            VARIANT& passed = Passed_[values.size() - 1 - i];
            if (static_cast<int>(i) == out) {
                passed.vt = static_cast<VARTYPE>(VT_BYREF | (script ? VARTYPE{VT_VARIANT} : Values_[i]->vt));
                passed.byref = script ? static_cast<void*>(Values_[i].get()) : &Values_[i]->byref;
            } else {
                passed = *Values_[i];
            }
        }
        Parameters_.rgvarg = Passed_.data();
        Parameters_.cArgs = static_cast<UINT>(Passed_.size());
    }

    DISPPARAMS& parameters() { return Parameters_; }
    Variant value(int index) { return fromAutomation(*Values_[static_cast<std::size_t>(index)]); }

private:
    std::vector<OwnedVariant> Values_;
    std::vector<VARIANT> Passed_;
    DISPPARAMS Parameters_{};
};

}  // namespace

bool DispatchCaller::isScript() const { return static_cast<bool>(ComPtr<IDispatchEx>::of(Object_.get())); }

DISPID DispatchCaller::idOf(std::u16string_view name) const {
    for (const auto& [known, id] : Ids_)
        if (known == name) return id;
    const DISPID id = lookUp(name);
    Ids_.emplace_back(name, id);
    return id;
}

DISPID DispatchCaller::lookUp(std::u16string_view name) const {
    std::wstring text = wide(name);
    wchar_t* names = text.data();
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = Object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) {
        if (const auto script = ComPtr<IDispatchEx>::of(Object_.get())) {
            OwnedVariant bstr;
            toAutomation(std::u16string(name), *bstr);
            result = script->GetDispID(bstr->bstrVal, fdexNameCaseInsensitive, &id);
        }
    }
    // Another failure, of the object's process say, is no word on its members.
    if (FAILED(result) && result != DISP_E_UNKNOWNNAME) raise(result, name);
    if (FAILED(result) || id == DISPID_UNKNOWN)
        throw AutomationError(UnknownNameCode, "the object has no " + toUtf8(name));
    return id;
}

HRESULT DispatchCaller::invoke(DISPID id, WORD flags, DISPPARAMS& arguments, VARIANT* result,
                               std::u16string_view name) const {
    EXCEPINFO exception{};
    const AtEnd freeTexts([&] {
        SysFreeString(exception.bstrSource);
        SysFreeString(exception.bstrDescription);
        SysFreeString(exception.bstrHelpFile);
    });
    const HRESULT outcome =
        Object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, &exception, nullptr);
    if (outcome == DISP_E_EXCEPTION) raise(exception);
    if (FAILED(outcome)) raise(outcome, name);
    return outcome;
}

Variant DispatchCaller::call(std::u16string_view name, std::span<Variant> arguments, int out) const {
    const ComPtr<IDispatch> held = Object_;
    CallArguments passed(arguments, out, out >= 0 && isScript());
    OwnedVariant result;
    invoke(idOf(name), DISPATCH_METHOD | DISPATCH_PROPERTYGET, passed.parameters(), result.get(), name);
    if (out >= 0) arguments[static_cast<std::size_t>(out)] = passed.value(out);
    return fromAutomation(*result);
}

void DispatchCaller::put(std::u16string_view name, const Variant& value) const {
    const ComPtr<IDispatch> held = Object_;
    CallArguments passed({&value, 1}, -1, false);
    DISPID named = DISPID_PROPERTYPUT;
    passed.parameters().rgdispidNamedArgs = &named;
    passed.parameters().cNamedArgs = 1;
    invoke(idOf(name), DISPATCH_PROPERTYPUT, passed.parameters(), nullptr, name);
}

}  // namespace kel::win32::ole
