#include "platform/win32/ole/automation/DualPart.h"

namespace kel::win32::ole {

Variant argumentOf(TypeTag /*type*/, BSTR value) { return textOf(value); }

Variant argumentOf(TypeTag type, SHORT value) {
    if (type == TypeTag::Boolean) return value != VARIANT_FALSE;
    return static_cast<std::int16_t>(value);
}

Variant argumentOf(TypeTag /*type*/, LONG value) { return static_cast<std::int32_t>(value); }

Variant argumentOf(TypeTag type, double value) {
    if (type == TypeTag::Date) return Date{value};
    return value;
}

Variant argumentOf(TypeTag /*type*/, const VARIANT& value) { return valueFromAutomation(value); }

Variant argumentOf(TypeTag /*type*/, IDispatch* value) {
    VARIANT object{};
    object.vt = VT_DISPATCH;
    object.pdispVal = value;
    return fromAutomation(object);
}

Variant argumentOf(TypeTag /*type*/, SAFEARRAY* value) { return fromSafeArray(value); }

void store(const Variant& value, BSTR& out) { out = makeBstr(std::get<std::u16string>(value)); }

void store(const Variant& value, SHORT& out) {
    if (const bool* set = std::get_if<bool>(&value)) {
        out = *set ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
        out = std::get<std::int16_t>(value);
    }
}

void store(const Variant& value, LONG& out) { out = std::get<std::int32_t>(value); }

void store(const Variant& value, double& out) {
    if (const Date* date = std::get_if<Date>(&value)) {
        out = date->Serial;
    } else {
        out = std::get<double>(value);
    }
}

void store(const Variant& value, VARIANT& out) {
    VariantInit(&out);
    toAutomation(value, out);
}

void store(const Variant& value, SAFEARRAY*& out) { out = toSafeArray(std::get<StringArray>(value)); }

}  // namespace kel::win32::ole
