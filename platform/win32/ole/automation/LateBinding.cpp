#include "platform/win32/ole/automation/LateBinding.h"

#include <algorithm>
#include <array>

#include "library/AutomationError.h"
#include "library/ClassRegistry.h"
#include "platform/win32/ole/automation/VariantConversion.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

constexpr std::size_t MostArguments = std::tuple_size_v<decltype(MemberRow::parameterRows)>;

/// What the caller handed over, in the order of the parameters.
class PassedArguments {
public:
    PassedArguments(const DISPPARAMS& passed, const MemberRow& member, LCID locale)
        : Passed_(passed), Parameters_(member.parameters()), Locale_(locale) {}

    /// False, with `code` and `position` of the argument at fault, when they do not fit the parameters.
    HRESULT read(UINT* argumentError) {
        if (Passed_.cNamedArgs > Passed_.cArgs || Passed_.cArgs > Parameters_.size()) return DISP_E_BADPARAMCOUNT;
        Values_.fill(Missing{});
        const UINT positional = Passed_.cArgs - Passed_.cNamedArgs;
        for (UINT i = 0; i < positional; ++i) {
            const HRESULT result = take(i, Passed_.cArgs - 1 - i, argumentError);
            if (FAILED(result)) return result;
        }
        for (UINT i = 0; i < Passed_.cNamedArgs; ++i) {
            const HRESULT result = takeNamed(i, argumentError);
            if (FAILED(result)) return result;
        }
        return S_OK;
    }

    std::span<Variant> values() { return {Values_.data(), Count_}; }

    /// The place of a parameter's argument among those handed over.
    UINT indexOf(int parameter) const { return Index_.at(static_cast<std::size_t>(std::max(parameter, 0))); }

    /// Hands back what the member left in by-reference arguments, where it is another value.
    void writeBackChanged(std::span<const Variant> before) const {
        for (std::size_t i = 0; i < Count_; ++i)
            if (Parameters_[i].byReference && Taken_[i] && Values_[i] != before[i])
                writeBack(Values_[i], Passed_.rgvarg[Index_[i]], Locale_);
    }

private:
    HRESULT takeNamed(UINT index, UINT* argumentError) {
        const DISPID position = Passed_.rgdispidNamedArgs[index];
        if (position < 0 || static_cast<std::size_t>(position) >= Parameters_.size() ||
            Taken_[static_cast<std::size_t>(position)]) {
            if (argumentError != nullptr) *argumentError = index;
            return DISP_E_PARAMNOTFOUND;
        }
        return take(static_cast<std::size_t>(position), index, argumentError);
    }

    HRESULT take(std::size_t parameter, UINT index, UINT* argumentError) {
        Taken_[parameter] = true;
        Index_[parameter] = index;
        Count_ = std::max(Count_, parameter + 1);
        const VARIANT& passed = Passed_.rgvarg[index];
        try {
            Values_[parameter] = valueFromAutomation(passed, Parameters_[parameter].type, Locale_);
        } catch (const AutomationError& error) {
            if (argumentError != nullptr) *argumentError = index;
            return error.code();
        }
        return S_OK;
    }

    const DISPPARAMS& Passed_;
    std::span<const ParameterRow> Parameters_;
    LCID Locale_;
    std::array<Variant, MostArguments> Values_;
    std::array<UINT, MostArguments> Index_{};
    std::array<bool, MostArguments> Taken_{};
    std::size_t Count_ = 0;
};

HRESULT finish(const Outcome& outcome, UINT index, UINT* argumentError) {
    if (outcome.argument >= 0 && argumentError != nullptr) *argumentError = index;
    return outcome.code;
}

HRESULT invokePut(const MemberAccess& access, const MemberRow& row, LCID locale, const DISPPARAMS& passed,
                  UINT* argumentError) {
    if (row.put == nullptr) return DISP_E_MEMBERNOTFOUND;
    const bool isNamed = passed.cNamedArgs == 1 && passed.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (passed.cArgs != 1 || (passed.cNamedArgs != 0 && !isNamed)) return DISP_E_BADPARAMCOUNT;
    Variant value;
    try {
        value = valueFromAutomation(passed.rgvarg[0], row.type, locale);
    } catch (const AutomationError& error) {
        if (argumentError != nullptr) *argumentError = 0;
        return error.code();
    }
    return finish(access.put(row, std::move(value), locale), 0, argumentError);
}

/// Most properties, which take no arguments.
HRESULT invokePlainGet(const MemberAccess& access, const MemberRow& row, LCID locale, VARIANT* result) {
    Variant value;
    const Outcome outcome = access.get(row, {}, value, locale);
    if (SUCCEEDED(outcome.code) && result != nullptr) toAutomation(value, *result);
    return outcome.code;
}

HRESULT invokeGetOrCall(const MemberAccess& access, const MemberRow& row, LCID locale, const DISPPARAMS& passed,
                        VARIANT* result, UINT* argumentError) {
    PassedArguments arguments(passed, row, locale);
    const HRESULT fit = arguments.read(argumentError);
    if (FAILED(fit)) return fit;
    const auto values = arguments.values();
    std::array<Variant, MostArguments> before;
    std::copy(values.begin(), values.end(), before.begin());
    Variant value;
    const Outcome outcome =
        row.isMethod ? access.call(row, values, value, locale) : access.get(row, values, value, locale);
    if (FAILED(outcome.code)) return finish(outcome, arguments.indexOf(outcome.argument), argumentError);
    arguments.writeBackChanged(before);
    if (result != nullptr) toAutomation(value, *result);
    return S_OK;
}

HRESULT dispatch(const MemberAccess& access, DISPID id, LCID locale, WORD flags, const DISPPARAMS& passed,
                 VARIANT* result, UINT* argumentError) {
    const MemberRow* row = findMember(access.model(), id);
    if (row == nullptr) return DISP_E_MEMBERNOTFOUND;
    if ((flags & DISPATCH_PROPERTYPUT) != 0) return invokePut(access, *row, locale, passed, argumentError);
    const WORD wanted = row->isMethod ? DISPATCH_METHOD : DISPATCH_PROPERTYGET;
    if ((flags & wanted) == 0) return DISP_E_MEMBERNOTFOUND;
    if (!row->isMethod && row->parameterCount == 0 && passed.cArgs == 0 && passed.cNamedArgs == 0)
        return invokePlainGet(access, *row, locale, result);
    return invokeGetOrCall(access, *row, locale, passed, result, argumentError);
}

HRESULT fillIn(EXCEPINFO* exception, const ClassModel& model, const AutomationError& error) {
    if (exception == nullptr) return FAILED(error.code()) ? error.code() : E_FAIL;
    *exception = {};
    exception->scode = FAILED(error.code()) ? error.code() : E_FAIL;
    exception->bstrSource = makeBstr(std::u16string(LibraryName) + u"." + std::u16string(model.name));
    exception->bstrDescription = makeBstr(fromUtf8(error.what()).value_or(u""));
    return DISP_E_EXCEPTION;
}

DISPID parameterId(const MemberRow* member, std::u16string_view name) {
    if (member == nullptr) return DISPID_UNKNOWN;
    const auto parameters = member->parameters();
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (equalsIgnoringCase(parameters[i].name, name)) return static_cast<DISPID>(i);
    return DISPID_UNKNOWN;
}

}  // namespace

HRESULT idsOfNames(const ClassModel& model, REFIID iid, LPOLESTR* names, UINT count, DISPID* ids) {
    if (!IsEqualGUID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    const MemberRow* member = findMember(model, unwiden(names[0]));
    ids[0] = member == nullptr ? DISPID_UNKNOWN : member->id;
    for (UINT i = 1; i < count; ++i) ids[i] = parameterId(member, unwiden(names[i]));
    return std::find(ids, ids + count, DISPID_UNKNOWN) == ids + count ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT invoke(const MemberAccess& access, DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
               VARIANT* result, EXCEPINFO* exception, UINT* argumentError) {
    if (!IsEqualGUID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (arguments == nullptr) return E_INVALIDARG;
    if (result != nullptr) VariantInit(result);
    // Hosts that know no locale mean the user's.
    if (locale == LOCALE_NEUTRAL) locale = LOCALE_USER_DEFAULT;
    try {
        return dispatch(access, id, locale, flags, *arguments, result, argumentError);
    } catch (const AutomationError& error) {
        return fillIn(exception, access.model(), error);
    }
}

}  // namespace kel::win32::ole
