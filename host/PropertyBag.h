#pragma once

#include <string_view>

#include "library/TypeModel.h"

namespace kel {

/// Where a control keeps its design-time properties: a form file, a stream, a host's own bag.
class PropertyBag {
public:
    /// The stored value as exactly `row.type`, or `row.readDefault`. A value that cannot be read as that
    /// type is the bag's error, thrown as its own exception.
    virtual Variant readProperty(const PersistedRow& row) = 0;

    /// Stores a value of exactly `row.type`; one that equals `row.writeDefault` is not stored.
    virtual void writeProperty(const PersistedRow& row, const Variant& value) = 0;

protected:
    ~PropertyBag() = default;
};

/// True when `value` has the type and the value of `byDefault`.
bool equalsDefault(const Variant& value, const PropertyDefault& byDefault);

Variant toVariant(const PropertyDefault& byDefault);

}  // namespace kel
