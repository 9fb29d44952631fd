#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace kel {

/// A day serial: whole days since 30 December 1899 and the fraction of a day as the time.
/// In a negative serial the fraction is a magnitude: -1.25 is 29 December 1899, 6:00.
struct Date {
    double Serial = 0;
    friend bool operator==(Date, Date) = default;
};

/// Never assigned.
struct Empty {
    friend bool operator==(Empty, Empty) = default;
};

/// Assigned, and no value.
struct Null {
    friend bool operator==(Null, Null) = default;
};

/// An optional argument that the caller left out.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

/// Base of everything that a host can pass around as an object.
struct Object {
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;
};

using ObjectPtr = std::shared_ptr<Object>;
using StringArray = std::vector<std::u16string>;

/// A value whose type is known only at run time, as late-bound callers and property bags hand it over.
using Variant = std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, double, Date, std::u16string,
                             StringArray, ObjectPtr>;

}  // namespace kel
