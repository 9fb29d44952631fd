#pragma once

#include <span>

#include "library/Dispatch.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// Asked before a member is reached for from outside.
class MemberGate {
public:
    /// False: the host wants the property to stay as it is.
    virtual bool mayPut(const MemberRow& /*member*/) { return true; }
    /// False: it is not for a caller of this kind.
    virtual bool mayCall(const MemberRow& /*member*/) const { return true; }

protected:
    ~MemberGate() = default;
};

/// What came of reaching for a member.
struct Outcome {
    HRESULT code = S_OK;
    int argument = -1;           ///< the argument at fault, counted from 0; the value of a put comes last
    std::u16string description;  ///< empty on success
};

/// Reads, puts and calls the members of one of the library's objects, late-bound or through a function
/// table. Faults of the caller come back as an outcome, failures of a member are thrown.
class MemberAccess {
public:
    /// `gate` may be null. All of them outlive this.
    MemberAccess(Object& object, const ClassModel& model, MemberGate* gate)
        : Object_(object), Model_(model), Gate_(gate) {}

    const ClassModel& model() const { return Model_; }
    const MemberRow& row(std::size_t index) const { return model().members[index]; }

    /// What the caller gives as a text is read by the rules of `locale`.
    Outcome get(const MemberRow& member, std::span<Variant> arguments, Variant& result, LCID locale) const;
    /// S_FALSE when the host did not let it happen.
    Outcome put(const MemberRow& member, Variant value, LCID locale) const;
    Outcome call(const MemberRow& member, std::span<Variant> arguments, Variant& result, LCID locale) const;

private:
    Outcome outcome(DispatchFault fault, const MemberRow& member, std::span<const Variant> arguments) const;

    Object& Object_;
    const ClassModel& Model_;
    MemberGate* Gate_;
};

}  // namespace kel::win32::ole
