#include "platform/win32/ole/automation/VariantConversion.h"

#include <limits>

#include "library/AutomationError.h"
#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/runtime/AutomationRuntime.h"
#include "values/Coercion.h"

namespace kel::win32::ole {

namespace {

/// Objects whose default property is an object again, and so on, are followed this far.
constexpr int DefaultPropertyDepth = 8;

[[noreturn]] void mismatch() { throw AutomationError(DISP_E_TYPEMISMATCH, "a value of this type is not understood"); }

void changeType(VARIANT& out, const VARIANT& in, VARTYPE type) {
    check(VariantChangeType(&out, const_cast<VARIANT*>(&in), 0, type), "the value has no such form");
}

Variant doubleOf(const VARIANT& in) {
    OwnedVariant number;
    changeType(*number, in, VT_R8);
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
    return dispatch ? ObjectPtr(std::make_shared<AutomationRuntime>(std::move(dispatch))) : ObjectPtr();
}

Variant dereferenced(const VARIANT& in) {
    OwnedVariant value;
    check(VariantCopyInd(value.get(), const_cast<VARIANT*>(&in)), "the reference cannot be followed");
    return fromAutomation(*value);
}

void defaultProperty(const VARIANT& in, VARIANT& out, int depth) {
    if (in.vt != VT_DISPATCH) {
        check(VariantCopyInd(&out, const_cast<VARIANT*>(&in)), "the value cannot be copied");
        return;
    }
    if (in.pdispVal == nullptr || depth == 0) mismatch();
    OwnedVariant value;
    DISPPARAMS none{};
    const HRESULT result = in.pdispVal->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                               value.get(), nullptr, nullptr);
    if (FAILED(result)) mismatch();
    defaultProperty(*value, out, depth - 1);
}

/// A number in a text stays one: it counts days.
Variant textAsDate(Variant value) {
    const auto* const text = std::get_if<std::u16string>(&value);
    double number = 0;
    if (text == nullptr || readPlainNumber(*text, systemRegion(), number)) return value;
    DATE serial = 0;
    const bool isDate = SUCCEEDED(VarDateFromStr(wide(*text).data(), LOCALE_USER_DEFAULT, 0, &serial));
    return isDate ? Variant(Date{serial}) : value;
}

Variant dateAsText(Variant value) {
    const auto* const date = std::get_if<Date>(&value);
    OwnedVariant text;
    if (date == nullptr || FAILED(VarBstrFromDate(date->Serial, LOCALE_USER_DEFAULT, 0, &text->bstrVal))) return value;
    text->vt = VT_BSTR;
    return textOf(text->bstrVal);
}

bool isObject(const VARIANT& in) {
    if (in.vt == (VT_BYREF | VT_VARIANT)) return in.pvarVal != nullptr && isObject(*in.pvarVal);
    return (in.vt & VT_TYPEMASK) == VT_DISPATCH && (in.vt & VT_ARRAY) == 0;
}

void storeObject(IUnknown** slot, IUnknown* object) {
    if (object != nullptr) object->AddRef();
    IUnknown* const old = std::exchange(*slot, object);
    if (old != nullptr) old->Release();
}

/// Moves what `value` holds, already of the slot's type, into the variable at `slot`.
void moveInto(void* slot, VARIANT& value) {
    if ((value.vt & VT_ARRAY) != 0) {
        std::swap(*static_cast<SAFEARRAY**>(slot), value.parray);
        return;
    }
    switch (value.vt) {
        case VT_BSTR: std::swap(*static_cast<BSTR*>(slot), value.bstrVal); return;
        case VT_UNKNOWN:
        case VT_DISPATCH: storeObject(static_cast<IUnknown**>(slot), value.punkVal); return;
        case VT_I1:
        case VT_UI1: std::memcpy(slot, &value.bVal, sizeof value.bVal); return;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL: std::memcpy(slot, &value.iVal, sizeof value.iVal); return;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_ERROR:
        case VT_R4: std::memcpy(slot, &value.lVal, sizeof value.lVal); return;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_CY:
        case VT_DATE: std::memcpy(slot, &value.llVal, sizeof value.llVal); return;
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

void checkDimensions(SAFEARRAY* array) {
    if (SafeArrayGetDim(array) != 1) mismatch();
}

std::u16string elementText(const VARIANT& element) {
    OwnedVariant text;
    changeType(*text, element, VT_BSTR);
    return textOf(text->bstrVal);
}

/// The elements of an array, kept in place while they are read.
class ArrayAccess {
public:
    explicit ArrayAccess(SAFEARRAY* array) : Array_(array) {
        check(SafeArrayAccessData(Array_, &Data_), "the array cannot be read");
    }
    ~ArrayAccess() { SafeArrayUnaccessData(Array_); }
    ArrayAccess(const ArrayAccess&) = delete;
    ArrayAccess& operator=(const ArrayAccess&) = delete;

    std::size_t size() const { return Array_->rgsabound[0].cElements; }
    template <class Element>
    Element* elements() const {
        return static_cast<Element*>(Data_);
    }

private:
    SAFEARRAY* Array_;
    void* Data_ = nullptr;
};

}  // namespace

StringArray fromSafeArray(SAFEARRAY* array) {
    if (array == nullptr) return {};
    checkDimensions(array);
    VARTYPE type = VT_EMPTY;
    if (FAILED(SafeArrayGetVartype(array, &type)) || (type != VT_BSTR && type != VT_VARIANT)) mismatch();
    const ArrayAccess access(array);
    StringArray texts(access.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = type == VT_BSTR ? textOf(access.elements<BSTR>()[i]) : elementText(access.elements<VARIANT>()[i]);
    return texts;
}

SAFEARRAY* toSafeArray(const StringArray& texts) {
    OwnedVariant owner;
    owner->parray = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
    if (owner->parray == nullptr) throw std::bad_alloc();
    owner->vt = VT_ARRAY | VT_BSTR;
    const ArrayAccess access(owner->parray);
    for (std::size_t i = 0; i < texts.size(); ++i) access.elements<BSTR>()[i] = makeBstr(texts[i]);
    owner->vt = VT_EMPTY;
    return owner->parray;
}

Variant fromAutomation(const VARIANT& in) {
    if ((in.vt & VT_BYREF) != 0) return dereferenced(in);
    if ((in.vt & VT_ARRAY) != 0) return fromSafeArray(in.parray);
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

Variant valueFromAutomation(const VARIANT& in) {
    if (!isObject(in)) return fromAutomation(in);
    OwnedVariant plain;
    check(VariantCopyInd(plain.get(), const_cast<VARIANT*>(&in)), "the reference cannot be followed");
    OwnedVariant value;
    defaultProperty(*plain, *value, DefaultPropertyDepth);
    return fromAutomation(*value);
}

Variant valueFromAutomation(const VARIANT& in, TypeTag type) {
    if (type == TypeTag::Object) return fromAutomation(in);
    Variant value = valueFromAutomation(in);
    if (type == TypeTag::Date) return textAsDate(std::move(value));
    if (type == TypeTag::String) return dateAsText(std::move(value));
    return value;
}

void toAutomation(const Variant& value, VARIANT& out) {
    struct Writer {
        VARIANT& out;
        void operator()(Empty) const { out.vt = VT_EMPTY; }
        void operator()(Null) const { out.vt = VT_NULL; }
        void operator()(Missing) const {
            out.vt = VT_ERROR;
            out.scode = DISP_E_PARAMNOTFOUND;
        }
        void operator()(bool set) const {
            out.vt = VT_BOOL;
            out.boolVal = set ? VARIANT_TRUE : VARIANT_FALSE;
        }
        void operator()(std::int16_t number) const {
            out.vt = VT_I2;
            out.iVal = number;
        }
        void operator()(std::int32_t number) const {
            out.vt = VT_I4;
            out.lVal = number;
        }
        void operator()(double number) const {
            out.vt = VT_R8;
            out.dblVal = number;
        }
        void operator()(Date date) const {
            out.vt = VT_DATE;
            out.date = date.Serial;
        }
        void operator()(const std::u16string& text) const {
            out.bstrVal = makeBstr(text);
            out.vt = VT_BSTR;
        }
        void operator()(const StringArray& texts) const {
            out.parray = toSafeArray(texts);
            out.vt = VT_ARRAY | VT_BSTR;
        }
        void operator()(const ObjectPtr& object) const {
            const auto known = std::dynamic_pointer_cast<AutomationObject>(object);
            out.pdispVal = known ? known->dispatch().detach() : nullptr;
            out.vt = VT_DISPATCH;
        }
    };
    std::visit(Writer{out}, value);
}

void writeBack(const Variant& value, const VARIANT& target) {
    if ((target.vt & VT_BYREF) == 0 || target.byref == nullptr) return;
    if (target.vt == (VT_BYREF | VT_VARIANT)) {
        if ((target.pvarVal->vt & VT_BYREF) != 0) return writeBack(value, *target.pvarVal);
        OwnedVariant made;
        toAutomation(value, *made);
        std::swap(*target.pvarVal, *made);
        return;
    }
    OwnedVariant made;
    toAutomation(value, *made);
    OwnedVariant fitting;
    changeType(*fitting, *made, static_cast<VARTYPE>(target.vt & ~VT_BYREF));
    moveInto(target.byref, *fitting);
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
