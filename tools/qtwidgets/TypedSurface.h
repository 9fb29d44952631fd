#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/TypeModel.h"

/// What the Qt class of a control has beyond the rows of its members: what only Qt knows of them.
namespace kel::qtwidgets {

/// How Qt has a value.
struct TypedKind {
    std::string_view type;
    std::string_view header;    ///< that it needs; empty for types of the language
    std::string_view toQt;      ///< function of kel::qt that takes a variant
    std::string_view fromQt;    ///< the other way
    std::string_view moreFrom;  ///< further arguments of that, and of `fromBound`
    /// The function that takes a QVariant of data that is bound to it, which may be more than the type says.
    std::string_view fromBound;
};

/// A member as a Qt developer looks for it: by the name that Qt's own widgets give such a property, in Qt's type. The
/// late-bound property of the member stays beside it, for code alone, unless it has the same name.
struct TypedProperty {
    std::u16string_view model;
    std::u16string_view member;
    std::string_view name;
    const TypedKind& kind;
    std::string_view notify{};  ///< the signal of the value that the control holds; empty for other properties
    std::string_view note{};    ///< that whoever reads the class is told as well
    std::string_view help{};    ///< in Qt's terms, where the member's own words are of another type's

    bool isHeldValue() const { return !notify.empty(); }
    bool isBound() const { return isHeldValue() && !kind.fromBound.empty(); }
};

/// A property that functions of the namespace `functions` read and write in the control.
struct MadeProperty {
    std::u16string_view model;
    std::string_view name;
    std::string_view type;
    std::string_view header;
    std::string_view functions;
    std::string_view functionsHeader;
    std::string_view notify;
    std::string_view help;
};

/// A signal that goes with an event of the control, and tells what `value` reads.
struct EventSignal {
    std::u16string_view model;
    std::u16string_view event;
    std::string_view signal;
    std::string_view parameter;
    std::string_view value;
    std::string_view help;
};

/// nullptr where the member has none.
const TypedProperty* typedProperty(const ClassModel& model, const MemberRow& member);
const TypedProperty* heldValue(const ClassModel& model);
std::vector<MadeProperty> madeProperties(const ClassModel& model);
const EventSignal* signalOf(const ClassModel& model, const EventRow& event);

/// The property that a tool shows for the member, and what it says of it.
std::string qtNameOf(const ClassModel& model, const MemberRow& member);
std::string helpOf(const ClassModel& model, const MemberRow& member);

/// A member that is no business of a Qt program's.
bool isLeftOut(const MemberRow& member);
/// One that every widget has: setting the widget's sets the control's too.
bool isWidgetsOwn(const MemberRow& member);
/// A property whose default Qt's tools can put back: it is the value of a new control as well.
bool isResettable(const MemberRow& member);
/// Of a control whose texts a person edits, there is a signal for that.
bool tellsEdits(const ClassModel& model);

}  // namespace kel::qtwidgets
