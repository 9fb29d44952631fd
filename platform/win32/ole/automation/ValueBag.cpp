#include "platform/win32/ole/automation/ValueBag.h"

#include <algorithm>

#include "library/AutomationError.h"
#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/com/Com.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

template <class T>
Variant coerced(const PersistedRow& row, const Variant& value) {
    T out{};
    const CoercionFault fault = coerce(value, systemRegion(), out);
    if (fault == CoercionFault::None) return detail::toVariant(std::move(out));
    throw AutomationError(fault == CoercionFault::Overflow ? DISP_E_OVERFLOW : DISP_E_TYPEMISMATCH,
                          "the stored " + toUtf8(row.name) + " is no value of its type");
}

Variant exactly(const PersistedRow& row, const Variant& value) {
    switch (row.type) {
        case TypeTag::String: return coerced<std::u16string>(row, value);
        case TypeTag::Boolean: return coerced<bool>(row, value);
        case TypeTag::Integer16: return coerced<std::int16_t>(row, value);
        case TypeTag::Integer32:
        case TypeTag::DaysFlag: return coerced<std::int32_t>(row, value);
        case TypeTag::Double: return coerced<double>(row, value);
        case TypeTag::Date: return coerced<Date>(row, value);
        case TypeTag::Strings: return coerced<StringArray>(row, value);
        case TypeTag::None:
        case TypeTag::Object:
        case TypeTag::Any: return value;
    }
    return value;
}

}  // namespace

void ValueBag::take(const PersistedRow& row, const Variant& value) {
    Values_.push_back({std::u16string(row.readName), exactly(row, value)});
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
