#include "tools/idl/IdlWriter.h"

#include <cstdio>
#include <ostream>

#include "tools/idl/TypeNames.h"

namespace kel::idl {

namespace {

/// The base types and interfaces in the few lines that the function tables hang on; a compiler that includes
/// the header made from this has the full ones already.
constexpr std::string_view Prelude = R"(typedef long HRESULT;
typedef short VARIANT_BOOL;
typedef double DATE;
typedef wchar_t *BSTR;
typedef struct tagVARIANT VARIANT;
[object, local, uuid(00000000-0000-0000-C000-000000000046)] interface IUnknown
{ HRESULT QueryInterface(); HRESULT AddRef(); HRESULT Release(); }
[object, local, uuid(00020400-0000-0000-C000-000000000046)] interface IDispatch : IUnknown
{ HRESULT GetTypeInfoCount(); HRESULT GetTypeInfo(); HRESULT GetIDsOfNames(); HRESULT Invoke(); }
)";

/// Told after each change, asked before it, and shown to the user as something that data is bound to.
constexpr std::string_view Bindable = ", bindable, requestedit, displaybind";

bool isBoundByDefault(const MemberRow& row) { return row.design.isBound && row.id == DefaultMemberId; }

std::string hexadecimal(std::int32_t id) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(id));
    return text;
}

std::string dispatchId(std::int32_t id) { return id <= 0 ? std::to_string(id) : hexadecimal(id); }

std::string parameter(const ParameterRow& row) {
    std::string text = row.isPointer() ? "[in, out" : "[in";
    if (row.optional)
        text += row.type == TypeTag::String ? ", optional, defaultvalue(\"\")" : ", optional, defaultvalue(0)";
    text += "] " + std::string(typeName(row.type));
    return text + (row.isPointer() ? " *" : " ") + narrow(row.name);
}

std::string parameters(std::span<const ParameterRow> rows) {
    std::string text;
    for (const ParameterRow& row : rows) text += (text.empty() ? "" : ", ") + parameter(row);
    return text;
}

class InterfaceWriter {
public:
    InterfaceWriter(std::ostream& out, const ClassModel& model) : Out_(out), Model_(model) {}

    void write() {
        Out_ << "    [object, dual, oleautomation, hidden, nonextensible,\n     uuid("
             << textOf(identityOf(Model_).dispatch) << "), helpstring(" << quoted(Model_.help) << ")]\n"
             << "    interface _" << narrow(Model_.name) << " : IDispatch\n    {\n";
        for (const MemberRow& row : Model_.members) writeMember(row);
        Out_ << "    }\n\n";
    }

private:
    void writeMember(const MemberRow& row) {
        if (row.get != nullptr) writeGet(row);
        if (row.put != nullptr) writePut(row);
        if (row.call != nullptr) writeMethod(row);
    }

    void attributes(const MemberRow& row, std::string_view kind) {
        Out_ << "        [id(" << dispatchId(row.id) << ')' << kind << (row.hidden ? ", hidden" : "")
             << (row.design.isBound ? Bindable : "") << (isBoundByDefault(row) ? ", defaultbind" : "")
             << ", helpstring(" << quoted(row.help) << ")]\n        HRESULT " << narrow(row.name) << '(';
    }

    void writeGet(const MemberRow& row) {
        attributes(row, ", propget");
        const std::string arguments = parameters(row.parameters());
        Out_ << arguments << (arguments.empty() ? "" : ", ") << "[out, retval] " << typeName(row.type) << " *Value);\n";
    }

    void writePut(const MemberRow& row) {
        attributes(row, ", propput");
        Out_ << parameter({.name = u"Value", .type = row.type, .byReference = row.putByReference, .optional = false})
             << ");\n";
    }

    void writeMethod(const MemberRow& row) {
        attributes(row, "");
        const std::string arguments = parameters(row.parameters());
        Out_ << arguments;
        if (row.type != TypeTag::None)
            Out_ << (arguments.empty() ? "" : ", ") << "[out, retval] " << typeName(row.type) << " *Value";
        Out_ << ");\n";
    }

    std::ostream& Out_;
    const ClassModel& Model_;
};

void writeEvents(std::ostream& out, const ClassModel& model) {
    const ClassIdentity& identity = identityOf(model);
    if (!identity.hasEvents()) return;
    out << "    [uuid(" << textOf(identity.events) << "), hidden, helpstring(\"Events of " << narrow(model.name)
        << "\")]\n    dispinterface __" << narrow(model.name) << "\n    {\n        properties:\n        methods:\n";
    for (const EventRow& row : model.events)
        out << "            [id(" << row.id << "), helpstring(" << quoted(row.help) << ")] void " << narrow(row.name)
            << '(' << parameters(row.parameters) << ");\n";
    out << "    };\n\n";
}

void writeCoclass(std::ostream& out, const ClassModel& model) {
    const ClassIdentity& identity = identityOf(model);
    const std::string name = narrow(model.name);
    out << "    [uuid(" << textOf(identity.coclass) << ")" << (model.isControl() ? ", control" : "") << ", helpstring("
        << quoted(model.help) << ")]\n    coclass " << name << "\n    {\n        [default] interface _" << name
        << ";\n";
    if (identity.hasEvents()) out << "        [default, source] dispinterface __" << name << ";\n";
    out << "    };\n\n";
}

void writeDaysFlag(std::ostream& out) {
    out << "    typedef [uuid(" << textOf(identities::DaysFlag)
        << "), helpstring(\"What a date field makes of the day it is given\")]\n    enum KelDateDaysFlag\n    {\n";
    for (std::size_t value = 0; value < KelDateDaysFlagNames.size(); ++value)
        out << "        " << narrow(KelDateDaysFlagNames[value]) << " = " << value
            << (value + 1 < KelDateDaysFlagNames.size() ? ",\n" : "\n");
    out << "    } KelDateDaysFlag;\n\n";
}

}  // namespace

void writeIdl(std::ostream& out, const ClassRegistry& classes) {
    const std::string library = narrow(LibraryName);
    out << Prelude << "\n[uuid(" << textOf(identities::TypeLibrary) << "), version(" << identities::MajorVersion << '.'
        << identities::MinorVersion << "), control, helpstring(\"" << library << " data-entry controls\")]\nlibrary "
        << library << "\n{\n    importlib(\"stdole2.tlb\");\n\n";
    writeDaysFlag(out);
    for (const ClassModel* model : classes.all()) {
        InterfaceWriter(out, *model).write();
        writeEvents(out, *model);
    }
    for (const ClassModel* model : classes.all()) writeCoclass(out, *model);
    out << "}\n";
}

}  // namespace kel::idl
