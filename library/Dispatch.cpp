#include "library/Dispatch.h"

#include <algorithm>

#include "values/Text.h"

namespace kel {

namespace {

bool isOmitted(const Variant& value) { return std::holds_alternative<Missing>(value); }

/// Too many arguments, or one without a default left out.
bool fitsParameters(const MemberRow& member, std::span<const Variant> arguments) {
    const auto parameters = member.parameters();
    if (arguments.size() > parameters.size()) return false;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const bool omitted = i >= arguments.size() || isOmitted(arguments[i]);
        if (omitted && !parameters[i].optional) return false;
    }
    return true;
}

DispatchFault run(Thunk thunk, DispatchFault::Kind missing, Object& object, const MemberRow& member,
                  std::span<Variant> arguments, Variant* result, const RegionalSettings& region) {
    if (thunk == nullptr) return {missing};
    if (!fitsParameters(member, arguments)) return {DispatchFault::Kind::ArgumentCount};
    return thunk(object, arguments, result, region);
}

std::u16string quoted(const Variant& value) {
    std::u16string text;
    if (coerce(value, defaultRegion(), text) != CoercionFault::None) return u"this value";
    if (std::holds_alternative<std::u16string>(value)) return u"\"" + text + u"\"";
    return text;
}

TypeTag wantedType(const MemberRow& member, int argument) {
    const auto parameters = member.parameters();
    const auto index = static_cast<std::size_t>(argument);
    return argument >= 0 && index < parameters.size() ? parameters[index].type : member.type;
}

}  // namespace

const MemberRow* findMember(const ClassModel& model, std::u16string_view name) {
    return model.index.find(model.members, name);
}

const MemberRow* findMember(const ClassModel& model, std::int32_t id) { return model.index.find(model.members, id); }

const EventRow* findEvent(const ClassModel& model, std::u16string_view name) {
    const auto found = std::find_if(model.events.begin(), model.events.end(),
                                    [name](const EventRow& row) { return equalsIgnoringCase(row.name, name); });
    return found == model.events.end() ? nullptr : &*found;
}

DispatchFault getMember(Object& object, const MemberRow& member, std::span<Variant> arguments, Variant& result,
                        const RegionalSettings& region) {
    return run(member.get, DispatchFault::Kind::NotReadable, object, member, arguments, &result, region);
}

DispatchFault putMember(Object& object, const MemberRow& member, const Variant& value, const RegionalSettings& region) {
    Variant copy = value;
    return putOwnValue(object, member, copy, region);
}

DispatchFault putOwnValue(Object& object, const MemberRow& member, Variant& value, const RegionalSettings& region) {
    if (member.put == nullptr) return {DispatchFault::Kind::NotWritable};
    if (isOmitted(value)) return {DispatchFault::Kind::ArgumentCount};
    return member.put(object, {&value, 1}, nullptr, region);
}

DispatchFault callMember(Object& object, const MemberRow& member, std::span<Variant> arguments, Variant& result,
                         const RegionalSettings& region) {
    return run(member.call, DispatchFault::Kind::NotCallable, object, member, arguments, &result, region);
}

std::u16string describeFault(DispatchFault fault, const ClassModel& model, std::u16string_view memberName,
                             std::span<const Variant> arguments) {
    std::u16string text = std::u16string(model.name) + u"." + std::u16string(memberName) + u": ";
    const MemberRow* member = findMember(model, memberName);
    const auto wanted = [&] {
        return member == nullptr ? std::u16string_view(u"another type") : nameOf(wantedType(*member, fault.argument));
    };
    const auto given = [&] {
        const auto index = static_cast<std::size_t>(fault.argument);
        return fault.argument >= 0 && index < arguments.size() ? quoted(arguments[index]) : u"this value";
    };
    switch (fault.kind) {
        case DispatchFault::Kind::None: return text + u"no error";
        case DispatchFault::Kind::UnknownName:
        case DispatchFault::Kind::UnknownMember: return text + u"there is no such member";
        case DispatchFault::Kind::NotReadable: return text + u"it is a method and cannot be read";
        case DispatchFault::Kind::NotWritable:
            return text + (member != nullptr && member->isMethod ? u"it is a method and cannot be set"
                                                                 : u"it can only be read");
        case DispatchFault::Kind::NotCallable: return text + u"it is a property and cannot be called";
        case DispatchFault::Kind::ArgumentCount: return text + u"wrong number of arguments";
        case DispatchFault::Kind::TypeMismatch:
            return text + u"a value of type " + std::u16string(wanted()) + u" is wanted, not " + given();
        case DispatchFault::Kind::Overflow:
            return text + given() + u" is out of the range of type " + std::u16string(wanted());
    }
    return text;
}

}  // namespace kel
