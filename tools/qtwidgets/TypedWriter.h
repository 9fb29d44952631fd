#pragma once

#include <iosfwd>

#include "tools/qtwidgets/TypedSurface.h"

/// The typed part of a widget class: what Qt's developers look for, with its signals.
namespace kel::qtwidgets {

// ---- Header

void writeEnums(std::ostream& out, const ClassModel& model);
void writeTypedProperty(std::ostream& out, const ClassModel& model, const MemberRow& member);
void writeMadeProperties(std::ostream& out, const ClassModel& model);
/// "valid" and "changed", which are told of. False where the member is neither.
bool writeStandingProperty(std::ostream& out, const MemberRow& member);
void writeTypedGetters(std::ostream& out, const ClassModel& model);
void writeTypedSlots(std::ostream& out, const ClassModel& model);
void writeTypedSignals(std::ostream& out, const ClassModel& model);
void writeBoundAccess(std::ostream& out, const ClassModel& model);

// ---- Source

void writeTypedAccess(std::ostream& out, const ClassModel& model);
void writeTelling(std::ostream& out, const ClassModel& model);

/// A field whose value is right or wrong, and that a person can be through with.
bool isField(const ClassModel& model);
/// The late-bound property of the member would have the typed one's name.
bool isReplaced(const ClassModel& model, const MemberRow& member);
bool isStanding(const MemberRow& member);

}  // namespace kel::qtwidgets
