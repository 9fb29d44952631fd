#pragma once

#include <span>
#include <string>
#include <string_view>

#include "library/TypeModel.h"

/// Late-bound access: members by name or dispatch identifier, arguments and results as variants.
namespace kel {

/// An object of one of the library's classes.
class LibraryObject : public Object {
public:
    virtual const ClassModel& model() const = 0;
};

/// Case of ASCII letters is ignored. nullptr: no such member.
const MemberRow* findMember(const ClassModel& model, std::u16string_view name);
const MemberRow* findMember(const ClassModel& model, std::int32_t id);
const EventRow* findEvent(const ClassModel& model, std::u16string_view name);

/// Reads a property. By-reference arguments are written back into `arguments`.
DispatchFault getMember(Object& object, const MemberRow& member, std::span<Variant> arguments, Variant& result,
                        const RegionalSettings& region);

/// Puts a property. `value` is never changed, also when the put takes its argument by reference.
DispatchFault putMember(Object& object, const MemberRow& member, const Variant& value, const RegionalSettings& region);
/// The same with a value that is the member's: it may be another one afterwards, unless there is a fault.
DispatchFault putOwnValue(Object& object, const MemberRow& member, Variant& value, const RegionalSettings& region);

/// Calls a method; `result` is left alone by methods without one.
DispatchFault callMember(Object& object, const MemberRow& member, std::span<Variant> arguments, Variant& result,
                         const RegionalSettings& region);

/// What went wrong, for a person: "KelText.CaptionWidth: a 16-bit integer is wanted, not "abc"".
std::u16string describeFault(DispatchFault fault, const ClassModel& model, std::u16string_view memberName,
                             std::span<const Variant> arguments);

}  // namespace kel
