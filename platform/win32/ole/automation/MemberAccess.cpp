#include "platform/win32/ole/automation/MemberAccess.h"

#include <algorithm>

#include "platform/win32/home/Win32Region.h"

namespace kel::win32::ole {

namespace {

/// An argument that cannot be left out was, by name.
bool leavesOutRequired(const MemberRow& member, std::span<const Variant> arguments) {
    const auto parameters = member.parameters();
    for (std::size_t i = 0; i < std::min(parameters.size(), arguments.size()); ++i)
        if (!parameters[i].optional && std::holds_alternative<Missing>(arguments[i])) return true;
    return false;
}

HRESULT codeOf(DispatchFault fault, const MemberRow& member, std::span<const Variant> arguments) {
    switch (fault.kind) {
        case DispatchFault::Kind::None: return S_OK;
        case DispatchFault::Kind::UnknownName: return DISP_E_UNKNOWNNAME;
        case DispatchFault::Kind::UnknownMember:
        case DispatchFault::Kind::NotReadable:
        case DispatchFault::Kind::NotWritable:
        case DispatchFault::Kind::NotCallable: return DISP_E_MEMBERNOTFOUND;
        case DispatchFault::Kind::ArgumentCount:
            return leavesOutRequired(member, arguments) ? DISP_E_PARAMNOTOPTIONAL : DISP_E_BADPARAMCOUNT;
        case DispatchFault::Kind::TypeMismatch: return DISP_E_TYPEMISMATCH;
        case DispatchFault::Kind::Overflow: return DISP_E_OVERFLOW;
    }
    return E_UNEXPECTED;
}

}  // namespace

Outcome MemberAccess::outcome(DispatchFault fault, const MemberRow& member, std::span<const Variant> arguments) const {
    if (fault.ok()) return {};
    return {codeOf(fault, member, arguments), fault.argument, describeFault(fault, model(), member.name, arguments)};
}

Outcome MemberAccess::get(const MemberRow& member, std::span<Variant> arguments, Variant& result, LCID locale) const {
    return outcome(getMember(Object_, member, arguments, result, regionOf(locale)), member, arguments);
}

Outcome MemberAccess::put(const MemberRow& member, Variant value, LCID locale) const {
    if (member.put != nullptr && Gate_ != nullptr && !Gate_->mayPut(member))
        return {.code = S_FALSE, .description = {}};
    return outcome(putOwnValue(Object_, member, value, regionOf(locale)), member, {&value, 1});
}

Outcome MemberAccess::call(const MemberRow& member, std::span<Variant> arguments, Variant& result, LCID locale) const {
    if (Gate_ != nullptr && !Gate_->mayCall(member))
        return {.code = E_ACCESSDENIED, .description = u"this member is not for scripts that are not trusted"};
    return outcome(callMember(Object_, member, arguments, result, regionOf(locale)), member, arguments);
}

}  // namespace kel::win32::ole
