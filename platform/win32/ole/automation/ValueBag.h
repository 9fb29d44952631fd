#pragma once

#include <span>
#include <string>
#include <vector>

#include "host/PropertyBag.h"

namespace kel::win32::ole {

/// One stored property.
struct StoredValue {
    std::u16string name;
    Variant value;
};

/// The value as exactly this type. Throws AutomationError, which names the property, when it cannot be that.
Variant exactValue(TypeTag type, std::u16string_view name, const Variant& value);

/// Persisted properties in memory, between a control and whatever a host keeps them in. A control is loaded
/// from here only after all of its values have been read and found good.
class ValueBag final : public PropertyBag {
public:
    /// Takes a value for a row. Throws AutomationError when it cannot be the row's type.
    void take(const PersistedRow& row, const Variant& value);

    /// The values written by a control, in its order.
    const std::vector<StoredValue>& values() const { return Values_; }

    Variant readProperty(const PersistedRow& row) override;
    void writeProperty(const PersistedRow& row, const Variant& value) override;

private:
    std::vector<StoredValue> Values_;
};

}  // namespace kel::win32::ole
