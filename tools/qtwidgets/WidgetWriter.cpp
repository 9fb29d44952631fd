#include "tools/qtwidgets/WidgetWriter.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "tools/qtwidgets/QtType.h"
#include "tools/qtwidgets/TypedWriter.h"
#include "values/Text.h"

namespace kel::qtwidgets {

namespace {

constexpr std::u16string_view MeasuredMember = u"CaptionWidth";  ///< by the widget, until it is put

bool isOptional(const ParameterRow& parameter) { return parameter.optional; }

/// Readable without arguments, as a property of Qt's has to be.
bool isQtProperty(const MemberRow& member) {
    return !member.isMethod && std::all_of(member.parameters().begin(), member.parameters().end(), &isOptional);
}

/// In the late-bound part of the class. Where the typed one tells how a field stands, a call with arguments is left.
bool isLateBound(const ClassModel& model, const MemberRow& member) {
    if (isLeftOut(member)) return false;
    return !isReplaced(model, member) || (isStanding(member) && !member.parameters().empty());
}

bool isSettable(const ClassModel& model, const MemberRow& member) {
    return member.put != nullptr && isLateBound(model, member) && !isWidgetsOwn(member);
}

std::string returnType(const MemberRow& member) {
    return member.type == TypeTag::None ? "void" : std::string(qtTypeOf(member.type).name);
}

std::string parameterList(std::span<const ParameterRow> parameters, bool withDefaults) {
    std::string list;
    for (const ParameterRow& parameter : parameters) {
        if (!list.empty()) list += ", ";
        list += parameterType(parameter) + lowerName(parameter.name);
        if (withDefaults && parameter.optional) list += " = " + std::string(qtTypeOf(parameter.type).nothing);
    }
    return list;
}

void addHeaders(std::set<std::string_view>& headers, TypeTag type) {
    if (type != TypeTag::None && !qtTypeOf(type).header.empty()) headers.insert(qtTypeOf(type).header);
}

std::set<std::string_view> headersOf(const ClassModel& model) {
    std::set<std::string_view> headers;
    for (const MemberRow& member : model.members) {
        addHeaders(headers, member.type);
        for (const ParameterRow& parameter : member.parameters()) addHeaders(headers, parameter.type);
    }
    for (const EventRow& event : model.events)
        for (const ParameterRow& parameter : event.parameters) addHeaders(headers, parameter.type);
    for (const MemberRow& member : model.members)
        if (const TypedProperty* const typed = typedProperty(model, member);
            typed != nullptr && !typed->kind.header.empty())
            headers.insert(typed->kind.header);
    for (const MadeProperty& made : madeProperties(model))
        if (!made.header.empty()) headers.insert(made.header);
    return headers;
}

// ---- Header

/// One that a typed property stands for is for code: tools show and save the typed one.
void writeQtProperty(std::ostream& out, const ClassModel& model, const MemberRow& member) {
    if (isLeftOut(member) || isWidgetsOwn(member) || writeStandingProperty(out, member)) return;
    const bool isTyped = typedProperty(model, member) != nullptr;
    if (isTyped) writeTypedProperty(out, model, member);
    if (isReplaced(model, member)) return;
    out << "    Q_PROPERTY(" << qtTypeOf(member.type).name << ' ' << lowerName(member.name) << " READ "
        << lowerName(member.name);
    if (member.put != nullptr) out << " WRITE " << setterName(member.name);
    if (member.name == MeasuredMember || (!isTyped && isResettable(member) && member.isPersisted()))
        out << " RESET reset" << toUtf8(member.name);
    if (isTyped || !member.isPersisted()) out << " DESIGNABLE false STORED false";
    out << ")\n";
}

/// Those that are saved come first, in the order in which a form is loaded: tools set them one after the other.
void writeQtProperties(std::ostream& out, const ClassModel& model) {
    for (const PersistedRow& saved : model.loaded) {
        const auto member = std::find_if(model.members.begin(), model.members.end(),
                                         [&](const MemberRow& row) { return &row.persisted == &saved; });
        writeQtProperty(out, model, *member);
    }
    for (const MemberRow& member : model.members)
        if (!member.isPersisted() && isQtProperty(member)) writeQtProperty(out, model, member);
    writeMadeProperties(out, model);
}

void writeClassComment(std::ostream& out, const ClassModel& model) {
    out << "/// " << toUtf8(model.help) << ".\n";
    const TypedProperty* const held = heldValue(model);
    if (held == nullptr || !held->isBound()) return;
    out << "///\n/// Data is bound to `" << held->name << "`, the USER property. In C++ it is a " << held->kind.type
        << ". To a mapper or a delegate it is a QVariant, so that\n"
           "/// what is null in a database stays so: it takes nulls, texts as databases write them and values of other "
           "types, and\n/// until the value is changed it gives back the very one that was written, be it one that the "
           "field shows cut or rounded.\n";
}

void writeGetter(std::ostream& out, const MemberRow& member) {
    out << "    /// " << toUtf8(member.help) << ".\n    ";
    if (!member.parameters().empty()) out << "Q_INVOKABLE ";
    out << returnType(member) << ' ' << lowerName(member.name) << '('
        << parameterList(member.parameters(), !isStanding(member)) << ") const;\n";
}

void writeSlots(std::ostream& out, const ClassModel& model) {
    for (const MemberRow& member : model.members)
        if (isSettable(model, member))
            out << "    void " << setterName(member.name) << '(' << valueParameterType(member.type)
                << lowerName(member.name) << ");\n";
    for (const MemberRow& member : model.members)
        if (member.isMethod)
            out << "\n    /// " << toUtf8(member.help) << ".\n    " << returnType(member) << ' '
                << lowerName(member.name) << '(' << parameterList(member.parameters(), true) << ");\n";
}

void writeSignals(std::ostream& out, const ClassModel& model) {
    for (const EventRow& event : model.events)
        out << "    /// " << toUtf8(event.help) << ".\n    void " << lowerName(event.name) << '('
            << parameterList(event.parameters, false) << ");\n";
}

// ---- Source

/// The arguments as variants, around a call; those by reference come back.
class ArgumentCode {
public:
    explicit ArgumentCode(std::span<const ParameterRow> parameters) : Parameters_(parameters) {}

    std::string before() const {
        if (Parameters_.empty()) return {};
        std::string code = "    std::array<kel::Variant, " + std::to_string(Parameters_.size()) + "> arguments{";
        for (std::size_t i = 0; i < Parameters_.size(); ++i)
            code += (i == 0 ? "" : ", ") + ("kel::qt::" + std::string(qtTypeOf(Parameters_[i].type).toVariant)) + '(' +
                    lowerName(Parameters_[i].name) + ')';
        return code + "};\n";
    }
    std::string pass() const { return Parameters_.empty() ? "" : ", arguments"; }
    std::string after() const {
        std::string code;
        for (std::size_t i = 0; i < Parameters_.size(); ++i)
            if (Parameters_[i].byReference)
                code += "    " + lowerName(Parameters_[i].name) +
                        " = kel::qt::" + std::string(qtTypeOf(Parameters_[i].type).toQt) + "(arguments[" +
                        std::to_string(i) + "]);\n";
        return code;
    }

private:
    std::span<const ParameterRow> Parameters_;
};

/// `reader` is the function of the base class that does it.
void writeCall(std::ostream& out, const ClassModel& model, const MemberRow& member, std::string_view reader) {
    const auto index = static_cast<std::size_t>(&member - model.members.data());
    const ArgumentCode arguments(member.parameters());
    const bool returns = member.type != TypeTag::None;
    out << '\n'
        << (member.type == TypeTag::DaysFlag ? widgetName(model) + "::" : std::string()) << returnType(member) << ' '
        << widgetName(model) << "::" << lowerName(member.name) << '(' << parameterList(member.parameters(), false)
        << ')' << (member.isMethod ? "" : " const") << " {\n"
        << arguments.before() << "    " << (returns ? "const kel::Variant result = " : "") << reader << '(' << index
        << arguments.pass() << ");\n"
        << arguments.after();
    if (returns) out << "    return kel::qt::" << qtTypeOf(member.type).toQt << "(result);\n";
    out << "}\n";
}

void writeSetter(std::ostream& out, const ClassModel& model, const MemberRow& member) {
    const auto index = static_cast<std::size_t>(&member - model.members.data());
    const std::string value = lowerName(member.name);
    out << "\nvoid " << widgetName(model) << "::" << setterName(member.name) << '(' << valueParameterType(member.type)
        << value << ") {\n    writeMember(" << index << ", kel::qt::" << qtTypeOf(member.type).toVariant << '(' << value
        << "));\n}\n";
}

void writeEventCase(std::ostream& out, const ClassModel& model, const EventRow& event) {
    out << "        case " << event.id << ": {\n";
    std::string passed;
    for (std::size_t i = 0; i < event.parameters.size(); ++i) {
        const ParameterRow& parameter = event.parameters[i];
        const std::string name = lowerName(parameter.name);
        out << "            auto " << name << " = kel::qt::" << qtTypeOf(parameter.type).toQt << "(arguments[" << i
            << "]);\n";
        passed += (i == 0 ? "" : ", ") + name;
    }
    out << "            Q_EMIT " << lowerName(event.name) << '(' << passed << ");\n";
    if (const EventSignal* const signal = signalOf(model, event))
        out << "            Q_EMIT " << signal->signal << '(' << signal->value << ");\n";
    for (std::size_t i = 0; i < event.parameters.size(); ++i)
        if (event.parameters[i].byReference)
            out << "            arguments[" << i << "] = kel::qt::" << qtTypeOf(event.parameters[i].type).toVariant
                << '(' << lowerName(event.parameters[i].name) << ");\n";
    out << "            break;\n        }\n";
}

void writeEvents(std::ostream& out, const ClassModel& model) {
    if (model.events.empty()) return;
    out << "\nvoid " << widgetName(model)
        << "::controlEvent(const kel::EventRow& event, [[maybe_unused]] std::span<kel::Variant> arguments) {\n"
           "    switch (event.id) {\n";
    for (const EventRow& event : model.events) writeEventCase(out, model, event);
    out << "        default: break;\n    }\n}\n";
}

}  // namespace

std::string widgetName(const ClassModel& model) { return toUtf8(model.name) + "Widget"; }

std::string widgetHeader(const ClassModel& model) {
    std::ostringstream out;
    out << Notice << "#pragma once\n\n";
    for (const std::string_view header : headersOf(model)) out << "#include <" << header << ">\n";
    out << "#include \"platform/qt/control/KelControlWidget.h\"\n\n";
    writeClassComment(out, model);
    out << "class KELCONTROLS8_EXPORT " << widgetName(model) << " : public kel::qt::KelControlWidget {\n    Q_OBJECT\n";
    writeQtProperties(out, model);
    out << "\npublic:\n";
    writeEnums(out, model);
    out << "    explicit " << widgetName(model) << "(QWidget* parent = nullptr);\n\n";
    writeTypedGetters(out, model);
    for (const MemberRow& member : model.members)
        if (!member.isMethod && isLateBound(model, member)) writeGetter(out, member);
    out << "\npublic Q_SLOTS:\n";
    writeTypedSlots(out, model);
    writeSlots(out, model);
    out << "\nQ_SIGNALS:\n";
    writeTypedSignals(out, model);
    writeSignals(out, model);
    if (!model.events.empty())
        out << "\nprotected:\n"
               "    void controlEvent(const kel::EventRow& event, std::span<kel::Variant> arguments) override;\n";
    writeBoundAccess(out, model);
    out << "};\n";
    return out.str();
}

std::string widgetSource(const ClassModel& model) {
    std::ostringstream out;
    const std::string name = widgetName(model);
    const std::string modelOf = "modelOf" + toUtf8(model.name);
    std::set<std::string_view> headers{"controls/Classes.h", "library/Control.h", "platform/qt/base/BoundValue.h"};
    for (const MadeProperty& made : madeProperties(model)) headers.insert(made.functionsHeader);
    out << Notice << "#include \"" << name << ".h\"\n\n#include <array>\n\n";
    for (const std::string_view header : headers) out << "#include \"" << header << "\"\n";
    out << "\nnamespace {\n\nconst kel::ClassModel& " << modelOf << "() {\n"
        << "    static const kel::ClassModel& model = *kel::libraryClasses().find(u\"" << toUtf8(model.name)
        << "\");\n    return model;\n}\n\n}  // namespace\n\n"
        << name << "::" << name << "(QWidget* parent) : KelControlWidget(" << modelOf << "(), parent) {}\n";
    writeTypedAccess(out, model);
    for (const MemberRow& member : model.members) {
        if (!isLateBound(model, member)) continue;
        writeCall(out, model, member, member.isMethod ? "callMember" : "readMember");
        if (isSettable(model, member)) writeSetter(out, model, member);
    }
    writeEvents(out, model);
    writeTelling(out, model);
    return out.str();
}

}  // namespace kel::qtwidgets
