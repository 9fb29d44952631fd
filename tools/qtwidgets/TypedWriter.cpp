#include "tools/qtwidgets/TypedWriter.h"

#include <algorithm>
#include <ostream>

#include "tools/qtwidgets/QtType.h"
#include "tools/qtwidgets/WidgetWriter.h"
#include "values/Text.h"

namespace kel::qtwidgets {

namespace {

std::string capitalized(std::string_view name) {
    std::string capital(name);
    capital.front() = static_cast<char>(capital.front() - 'a' + 'A');
    return capital;
}

/// "const QString& text".
std::string parameter(std::string_view type, std::string_view name) {
    const bool isLarge = type == "QString" || type == "QStringList" || type == "QVariant";
    return (isLarge ? "const " + std::string(type) + "& " : std::string(type) + " ") + std::string(name);
}

std::size_t placeOf(const ClassModel& model, const MemberRow& member) {
    return static_cast<std::size_t>(&member - model.members.data());
}

bool hasMember(const ClassModel& model, std::u16string_view name) {
    return std::any_of(model.members.begin(), model.members.end(),
                       [&](const MemberRow& member) { return member.name == name; });
}

/// A field that can be empty.
bool isCleared(const ClassModel& model) {
    const TypedProperty* const held = heldValue(model);
    return held != nullptr && isField(model) && held->isBound() && held->kind.type != "bool";
}

template <class Action>
void forEachTyped(const ClassModel& model, Action action) {
    for (const MemberRow& member : model.members)
        if (const TypedProperty* const typed = typedProperty(model, member)) action(member, *typed);
}

/// Those with a default to go back to, by the name that the property has in Qt.
template <class Action>
void forEachReset(const ClassModel& model, Action action) {
    for (const MemberRow& member : model.members) {
        if (!isResettable(member) || !member.isPersisted()) continue;
        action(member, qtNameOf(model, member));
    }
}

}  // namespace

bool isStanding(const MemberRow& member) { return member.name == u"Valid" || member.name == u"Changed"; }

bool isField(const ClassModel& model) { return hasMember(model, u"Valid"); }

bool isReplaced(const ClassModel& model, const MemberRow& member) {
    const TypedProperty* const typed = typedProperty(model, member);
    return (typed != nullptr && typed->name == lowerName(member.name)) || isStanding(member);
}

// ---- Header

void writeEnums(std::ostream& out, const ClassModel& model) {
    const auto flag = std::find_if(model.members.begin(), model.members.end(),
                                   [](const MemberRow& member) { return member.type == TypeTag::DaysFlag; });
    if (flag == model.members.end()) return;
    out << "    /// " << toUtf8(flag->help) << ".\n    enum DaysFlag {";
    for (std::size_t value = 0; value < flag->design.choices.size(); ++value)
        out << (value == 0 ? " " : ", ") << toUtf8(flag->design.choices[value]) << " = " << value;
    out << " };\n    Q_ENUM(DaysFlag)\n\n";
}

void writeTypedProperty(std::ostream& out, const ClassModel& model, const MemberRow& member) {
    const TypedProperty& typed = *typedProperty(model, member);
    const std::string capital = capitalized(typed.name);
    out << "    Q_PROPERTY(" << (typed.isBound() ? "QVariant" : typed.kind.type) << ' ' << typed.name << " READ "
        << (typed.isBound() ? "bound" + capital : std::string(typed.name)) << " WRITE set"
        << (typed.isBound() ? "Bound" : "") << capital;
    if (typed.isHeldValue() ? isCleared(model) : isResettable(member))
        out << " RESET " << (typed.isHeldValue() ? "clear" : "reset" + capital);
    if (typed.isHeldValue()) out << " NOTIFY " << typed.notify;
    if (!member.isPersisted()) out << " DESIGNABLE false STORED false";
    if (typed.isHeldValue()) out << " USER true";
    out << ")\n";
}

void writeMadeProperties(std::ostream& out, const ClassModel& model) {
    for (const MadeProperty& made : madeProperties(model)) {
        out << "    Q_PROPERTY(" << made.type << ' ' << made.name << " READ " << made.name << " WRITE set"
            << capitalized(made.name);
        if (!made.notify.empty()) out << " NOTIFY " << made.notify;
        out << " DESIGNABLE false STORED false)\n";
    }
}

bool writeStandingProperty(std::ostream& out, const MemberRow& member) {
    if (!isStanding(member)) return false;
    const std::string name = lowerName(member.name);
    out << "    Q_PROPERTY(bool " << name << " READ " << name << " NOTIFY " << name
        << "Changed DESIGNABLE false STORED false)\n";
    return true;
}

void writeTypedGetters(std::ostream& out, const ClassModel& model) {
    forEachTyped(model, [&](const MemberRow& member, const TypedProperty& typed) {
        out << "    /// " << helpOf(model, member) << ".\n";
        if (typed.isHeldValue() && isCleared(model))
            out << "    /// What is being typed counts, and stays as it is typed.\n";
        if (!typed.note.empty()) out << "    /// " << typed.note << '\n';
        out << "    " << typed.kind.type << ' ' << typed.name << "() const;\n";
    });
    for (const MadeProperty& made : madeProperties(model))
        out << "    /// " << made.help << ".\n    " << made.type << ' ' << made.name << "() const;\n";
    for (const MemberRow& member : model.members) {
        if (!isStanding(member)) continue;
        out << "    /// " << toUtf8(member.help) << ". The text counts as it stands, and stays.\n    bool "
            << lowerName(member.name) << "() const;\n";
    }
}

void writeTypedSlots(std::ostream& out, const ClassModel& model) {
    forEachTyped(model, [&](const MemberRow& /*member*/, const TypedProperty& typed) {
        out << "    void set" << capitalized(typed.name) << '(' << parameter(typed.kind.type, typed.name) << ");\n";
    });
    for (const MadeProperty& made : madeProperties(model))
        out << "    void set" << capitalized(made.name) << '(' << parameter(made.type, made.name) << ");\n";
    if (isCleared(model)) out << "    /// Leaves nothing in the field.\n    void clear();\n";
    forEachReset(model, [&](const MemberRow& /*member*/, const std::string& name) {
        out << "    /// To the default.\n    void reset" << capitalized(name) << "();\n";
    });
}

void writeTypedSignals(std::ostream& out, const ClassModel& model) {
    if (const TypedProperty* const held = heldValue(model))
        out << "    /// The value is another one, whoever changed it"
            << (isCleared(model) ? "; what is typed is one when it is committed" : "") << ".\n    void " << held->notify
            << '(' << parameter(held->kind.type, held->name) << ");\n";
    if (tellsEdits(model)) out << "    /// A person has edited the text.\n    void textEdited(const QString& text);\n";
    for (const EventRow& event : model.events)
        if (const EventSignal* const signal = signalOf(model, event))
            out << "    /// " << signal->help << ".\n    void " << signal->signal << '(' << signal->parameter
                << " value);\n";
    if (!isField(model)) return;
    out << "    /// The person has left the field, or pressed Enter in it.\n    void editingFinished();\n"
           "    void validChanged(bool valid);\n    void changedChanged(bool changed);\n";
}

void writeBoundAccess(std::ostream& out, const ClassModel& model) {
    const TypedProperty* const held = heldValue(model);
    if (held == nullptr) return;
    out << "\nprotected:\n    void tell(Telling what) override;\n";
    if (!held->isBound()) return;
    const std::string capital = capitalized(held->name);
    out << "\nprivate:\n    QVariant bound" << capital << "() const;\n    void setBound" << capital
        << "(const QVariant& value);\n";
}

// ---- Source

namespace {

void writeTypedAccessors(std::ostream& out, const ClassModel& model, const MemberRow& member,
                         const TypedProperty& typed) {
    const std::string name = widgetName(model);
    const std::string capital = capitalized(typed.name);
    const std::size_t place = placeOf(model, member);
    const std::string read = typed.isHeldValue() ? "storedValue()" : "readMember(" + std::to_string(place) + ')';
    out << '\n'
        << typed.kind.type << ' ' << name << "::" << typed.name << "() const { return kel::qt::" << typed.kind.toQt
        << '(' << read << "); }\n\nvoid " << name << "::set" << capital << '(' << parameter(typed.kind.type, typed.name)
        << ") { writeMember(" << place << ", kel::qt::" << typed.kind.fromQt << '(' << typed.name << typed.kind.moreFrom
        << ")); }\n";
    if (!typed.isBound()) return;
    out << "\nQVariant " << name << "::bound" << capital << "() const {\n    return readBound(kel::qt::toBound("
        << "storedValue(), &kel::qt::" << typed.kind.toQt << "));\n}\n\nvoid " << name << "::setBound" << capital
        << "(const QVariant& value) {\n    writeBound(" << place << ", value, kel::qt::" << typed.kind.fromBound
        << "(value" << typed.kind.moreFrom << "));\n}\n";
    if (isCleared(model)) out << "\nvoid " << name << "::clear() { setBound" << capital << "({}); }\n";
}

}  // namespace

void writeTypedAccess(std::ostream& out, const ClassModel& model) {
    const std::string name = widgetName(model);
    forEachTyped(model, [&](const MemberRow& member, const TypedProperty& typed) {
        writeTypedAccessors(out, model, member, typed);
    });
    forEachReset(model, [&](const MemberRow& member, const std::string& property) {
        out << "\nvoid " << name << "::reset" << capitalized(property) << "() { resetMember(" << placeOf(model, member)
            << "); }\n";
    });
    for (const MadeProperty& made : madeProperties(model)) {
        const std::string functions = "kel::qt::" + std::string(made.functions) + "::";
        const std::string capital = capitalized(made.name);
        out << '\n'
            << made.type << ' ' << name << "::" << made.name << "() const { return " << functions << made.name
            << "(control()); }\n\nvoid " << name << "::set" << capital << '(' << parameter(made.type, made.name)
            << ") { " << functions << "set" << capital << "(control(), " << made.name << "); }\n";
    }
    for (const MemberRow& member : model.members)
        if (isStanding(member))
            out << "\nbool " << name << "::" << lowerName(member.name) << "() const { return stands"
                << toUtf8(member.name) << "(); }\n";
}

void writeTelling(std::ostream& out, const ClassModel& model) {
    const TypedProperty* const held = heldValue(model);
    if (held == nullptr) return;
    out << "\nvoid " << widgetName(model) << "::tell(Telling what) {\n    switch (what) {\n"
        << "        case Telling::Value: Q_EMIT " << held->notify << "(kel::qt::" << held->kind.toQt
        << "(control().heldValue())); break;\n";
    if (tellsEdits(model)) out << "        case Telling::Edited: Q_EMIT textEdited(" << held->name << "()); break;\n";
    if (isField(model))
        out << "        case Telling::Valid: Q_EMIT validChanged(valid()); break;\n"
               "        case Telling::Changed: Q_EMIT changedChanged(changed()); break;\n"
               "        case Telling::Finished: Q_EMIT editingFinished(); break;\n";
    out << "        default: break;\n    }\n}\n";
}

}  // namespace kel::qtwidgets
