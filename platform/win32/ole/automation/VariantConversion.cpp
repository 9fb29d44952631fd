#include "platform/win32/ole/automation/VariantConversion.h"

#include <algorithm>
#include <limits>

#include "library/AutomationError.h"
#include "platform/win32/base/AtEnd.h"
#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/runtime/AutomationRuntime.h"
#include "values/Coercion.h"

namespace kel::win32::ole {

namespace {

/// Objects whose default property is an object again, and so on, are followed this far.
constexpr int DefaultPropertyDepth = 8;

[[noreturn]] void mismatch() { throw AutomationError(DISP_E_TYPEMISMATCH, "a value of this type is not understood"); }

void changeType(VARIANT& out, const VARIANT& in, VARTYPE type, LCID locale) {
    check(VariantChangeTypeEx(&out, const_cast<VARIANT*>(&in), locale, 0, type), "the value has no such form");
}

Variant doubleOf(const VARIANT& in) {
    OwnedVariant number;
    changeType(*number, in, VT_R8, LOCALE_INVARIANT);
    return number->dblVal;
}

/// 32 bits where they hold the value, else a double.
Variant integerOf(const VARIANT& in) {
    Variant number = doubleOf(in);
    const double value = std::get<double>(number);
    using Limits = std::numeric_limits<std::int32_t>;
    if (value < Limits::min() || value > Limits::max()) return number;
    return static_cast<std::int32_t>(value);
}

Variant objectOf(IUnknown* object) {
    auto dispatch = ComPtr<IDispatch>::of(object);
    if (object != nullptr && !dispatch) mismatch();
    return dispatch ? ObjectPtr(automationRuntime(std::move(dispatch))) : ObjectPtr();
}

void copyFollowing(const VARIANT& in, VARIANT& out) {
    check(VariantCopyInd(&out, const_cast<VARIANT*>(&in)), "the reference cannot be followed");
}

void defaultProperty(const VARIANT& in, VARIANT& out, int depth) {
    if (in.vt != VT_DISPATCH) return copyFollowing(in, out);
    if (in.pdispVal == nullptr || depth == 0) mismatch();
    OwnedVariant value;
    DISPPARAMS none{};
    const HRESULT result = in.pdispVal->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                               value.get(), nullptr, nullptr);
    if (FAILED(result)) mismatch();
    defaultProperty(*value, out, depth - 1);
}

/// A number in a text stays one: it counts days.
Variant textAsDate(Variant value, LCID locale) {
    const auto* const text = std::get_if<std::u16string>(&value);
    double number = 0;
    if (text == nullptr || readPlainNumber(*text, regionOf(locale), number)) return value;
    DATE serial = 0;
    const bool isDate = SUCCEEDED(VarDateFromStr(wide(*text).data(), locale, 0, &serial));
    return isDate ? Variant(Date{serial}) : value;
}

Variant dateAsText(Variant value, LCID locale) {
    const auto* const date = std::get_if<Date>(&value);
    OwnedVariant text;
    if (date == nullptr || FAILED(VarBstrFromDate(date->Serial, locale, 0, &text->bstrVal))) return value;
    text->vt = VT_BSTR;
    return textOf(text->bstrVal);
}

bool isObject(const VARIANT& in) {
    if (in.vt == (VT_BYREF | VT_VARIANT)) return in.pvarVal != nullptr && isObject(*in.pvarVal);
    return (in.vt & VT_TYPEMASK) == VT_DISPATCH && (in.vt & VT_ARRAY) == 0;
}

/// Trades what `value` holds, already of the slot's type, for what stands in the variable at `slot`.
void swapInto(void* slot, VARIANT& value) {
    const auto swapped = [&](auto& held) { std::swap(*static_cast<std::remove_cvref_t<decltype(held)>*>(slot), held); };
    if ((value.vt & VT_ARRAY) != 0) return swapped(value.parray);
    switch (value.vt) {
        case VT_BSTR: return swapped(value.bstrVal);
        case VT_UNKNOWN:
        case VT_DISPATCH: return swapped(value.punkVal);
        case VT_I1:
        case VT_UI1: return swapped(value.bVal);
        case VT_I2:
        case VT_UI2:
        case VT_BOOL: return swapped(value.iVal);
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_ERROR:
        case VT_R4: return swapped(value.lVal);
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_CY:
        case VT_DATE: return swapped(value.llVal);
        case VT_DECIMAL: {
            auto* const decimal = static_cast<DECIMAL*>(slot);
            const auto reserved = decimal->wReserved;
            *decimal = value.decVal;
            decimal->wReserved = reserved;
            return;
        }
        default: mismatch();
    }
}

std::u16string elementText(const VARIANT& element, LCID locale) {
    OwnedVariant text;
    changeType(*text, element, VT_BSTR, locale);
    return textOf(text->bstrVal);
}

/// A null array has none.
StringArray textsIn(SAFEARRAY* array, LCID locale) {
    if (array == nullptr) return {};
    VARTYPE type = VT_EMPTY;
    if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetVartype(array, &type))) mismatch();
    if (type != VT_BSTR && type != VT_VARIANT) mismatch();
    void* elements = nullptr;
    check(SafeArrayAccessData(array, &elements), "the array cannot be read");
    const AtEnd done([array] { SafeArrayUnaccessData(array); });
    StringArray texts(array->rgsabound[0].cElements);
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = type == VT_BSTR ? textOf(static_cast<BSTR*>(elements)[i])
                                   : elementText(static_cast<VARIANT*>(elements)[i], locale);
    return texts;
}

/// The caller's to destroy.
SAFEARRAY* arrayOf(const StringArray& texts) {
    OwnedVariant owner;
    owner->parray = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
    if (owner->parray == nullptr) throw std::bad_alloc();
    owner->vt = VT_ARRAY | VT_BSTR;
    auto* const elements = static_cast<BSTR*>(owner->parray->pvData);
    std::transform(texts.begin(), texts.end(), elements, &makeBstr);
    owner->vt = VT_EMPTY;
    return owner->parray;
}

/// Writes a value as what the system has for it.
struct Writer {
    VARIANT& out;
    template <class T>
    void set(VARTYPE type, T& field, std::type_identity_t<T> plain) const {
        field = plain;
        out.vt = type;
    }
    void operator()(Empty) const { out.vt = VT_EMPTY; }
    void operator()(Null) const { out.vt = VT_NULL; }
    void operator()(Missing) const { set(VT_ERROR, out.scode, DISP_E_PARAMNOTFOUND); }
    void operator()(bool isSet) const { set(VT_BOOL, out.boolVal, isSet ? VARIANT_TRUE : VARIANT_FALSE); }
    void operator()(std::int16_t number) const { set(VT_I2, out.iVal, number); }
    void operator()(std::int32_t number) const { set(VT_I4, out.lVal, number); }
    void operator()(double number) const { set(VT_R8, out.dblVal, number); }
    void operator()(Date date) const { set(VT_DATE, out.date, date.Serial); }
    void operator()(const std::u16string& text) const { set(VT_BSTR, out.bstrVal, makeBstr(text)); }
    void operator()(const StringArray& texts) const { set(VT_ARRAY | VT_BSTR, out.parray, arrayOf(texts)); }
    void operator()(const ObjectPtr& object) const {
        const auto known = std::dynamic_pointer_cast<AutomationObject>(object);
        set(VT_DISPATCH, out.pdispVal, known ? known->dispatch().detach() : nullptr);
    }
};

}  // namespace

Variant fromAutomation(const VARIANT& in, LCID locale) {
    if ((in.vt & VT_BYREF) != 0) {
        OwnedVariant value;
        copyFollowing(in, *value);
        return fromAutomation(*value, locale);
    }
    if ((in.vt & VT_ARRAY) != 0) return textsIn(in.parray, locale);
    switch (in.vt) {
        case VT_EMPTY: return Empty{};
        case VT_NULL: return Null{};
        case VT_ERROR:
            if (in.scode == DISP_E_PARAMNOTFOUND) return Missing{};
            mismatch();
        case VT_BOOL: return in.boolVal != VARIANT_FALSE;
        case VT_I2: return static_cast<std::int16_t>(in.iVal);
        case VT_I4:
        case VT_INT: return static_cast<std::int32_t>(in.lVal);
        case VT_I1:
        case VT_UI1:
        case VT_UI2:
        case VT_UI4:
        case VT_UINT:
        case VT_I8:
        case VT_UI8: return integerOf(in);
        case VT_R4:
        case VT_CY:
        case VT_DECIMAL: return doubleOf(in);
        case VT_R8: return in.dblVal;
        case VT_DATE: return Date{in.date};
        case VT_BSTR: return textOf(in.bstrVal);
        case VT_UNKNOWN:
        case VT_DISPATCH: return objectOf(in.punkVal);
        default: mismatch();
    }
}

Variant valueFromAutomation(const VARIANT& in, LCID locale) {
    if (!isObject(in)) return fromAutomation(in, locale);
    OwnedVariant plain;
    copyFollowing(in, *plain);
    OwnedVariant value;
    defaultProperty(*plain, *value, DefaultPropertyDepth);
    return fromAutomation(*value, locale);
}

Variant valueFromAutomation(const VARIANT& in, TypeTag type, LCID locale) {
    if (type == TypeTag::Object) return fromAutomation(in, locale);
    Variant value = valueFromAutomation(in, locale);
    if (type == TypeTag::Date) return textAsDate(std::move(value), locale);
    if (type == TypeTag::String) return dateAsText(std::move(value), locale);
    return value;
}

void toAutomation(const Variant& value, VARIANT& out) { std::visit(Writer{out}, value); }

void writeBack(const Variant& value, const VARIANT& target, LCID locale) {
    if ((target.vt & VT_BYREF) == 0 || target.byref == nullptr) return;
    const bool isVariant = target.vt == (VT_BYREF | VT_VARIANT);
    if (isVariant && (target.pvarVal->vt & VT_BYREF) != 0) return writeBack(value, *target.pvarVal, locale);
    OwnedVariant made;
    toAutomation(value, *made);
    if (isVariant) return std::swap(*target.pvarVal, *made);
    OwnedVariant fitting;
    changeType(*fitting, *made, static_cast<VARTYPE>(target.vt & ~VT_BYREF), locale);
    swapInto(target.byref, *fitting);
}

VARTYPE automationType(TypeTag type) {
    switch (type) {
        case TypeTag::None:
        case TypeTag::Any: return VT_EMPTY;
        case TypeTag::String: return VT_BSTR;
        case TypeTag::Boolean: return VT_BOOL;
        case TypeTag::Integer16: return VT_I2;
        case TypeTag::Integer32:
        case TypeTag::DaysFlag: return VT_I4;
        case TypeTag::Double: return VT_R8;
        case TypeTag::Date: return VT_DATE;
        case TypeTag::Object: return VT_DISPATCH;
        case TypeTag::Strings: return VT_ARRAY | VT_BSTR;
    }
    return VT_EMPTY;
}

}  // namespace kel::win32::ole
