#include "platform/win32/ole/automation/ValueBag.h"

#include <algorithm>

#include "library/AutomationError.h"
#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/com/Com.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

template <class T>
Variant coerced(std::u16string_view name, const Variant& value) {
    T out{};
    const CoercionFault fault = coerce(value, systemRegion(), out);
    if (fault == CoercionFault::None) return detail::toVariant(std::move(out));
    throw AutomationError(fault == CoercionFault::Overflow ? DISP_E_OVERFLOW : DISP_E_TYPEMISMATCH,
                          toUtf8(name) + " is no value of its type");
}

}  // namespace

Variant exactValue(TypeTag type, std::u16string_view name, const Variant& value) {
    switch (type) {
        case TypeTag::String: return coerced<std::u16string>(name, value);
        case TypeTag::Boolean: return coerced<bool>(name, value);
        case TypeTag::Integer16: return coerced<std::int16_t>(name, value);
        case TypeTag::Integer32:
        case TypeTag::DaysFlag: return coerced<std::int32_t>(name, value);
        case TypeTag::Double: return coerced<double>(name, value);
        case TypeTag::Date: return coerced<Date>(name, value);
        case TypeTag::Strings: return coerced<StringArray>(name, value);
        case TypeTag::None:
        case TypeTag::Object:
        case TypeTag::Any: return value;
    }
    return value;
}

void ValueBag::take(const PersistedRow& row, const Variant& value) {
    Values_.push_back({std::u16string(row.readName), exactValue(row.type, row.name, value)});
}

Variant ValueBag::readProperty(const PersistedRow& row) {
    const auto found = std::find_if(Values_.begin(), Values_.end(),
                                    [&row](const StoredValue& stored) { return stored.name == row.readName; });
    return found != Values_.end() ? found->value : toVariant(row.readDefault);
}

void ValueBag::writeProperty(const PersistedRow& row, const Variant& value) {
    if (!equalsDefault(value, row.writeDefault)) Values_.push_back({std::u16string(row.name), value});
}

}  // namespace kel::win32::ole
