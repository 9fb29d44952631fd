#include "tools/idl/ForwardWriter.h"

#include <ostream>

#include "tools/idl/TypeNames.h"

namespace kel::idl {

namespace {

std::string valueType(TypeTag type) {
    switch (type) {
        case TypeTag::Strings: return "SAFEARRAY *";
        case TypeTag::DaysFlag: return "::KelDateDaysFlag";  // the header stands outside all namespaces
        default: return std::string(typeName(type));
    }
}

std::string declaration(const ParameterRow& row) {
    return valueType(row.type) + (row.isPointer() ? " *" : " ") + narrow(row.name);
}

class TableWriter {
public:
    TableWriter(std::ostream& out, const ClassModel& model) : Out_(out), Model_(model) {}

    void write() {
        const std::string name = narrow(Model_.name);
        Out_ << "template <class Base>\nclass " << name
             << "Forward : public Base {\npublic:\n    using Base::Base;\n\n";
        for (std::size_t i = 0; i < Model_.members.size(); ++i) writeMember(Model_.members[i], i);
        Out_ << "};\n\n";
    }

private:
    void writeMember(const MemberRow& row, std::size_t index) {
        const std::string at = std::to_string(index);
        const std::string value = row.type == TypeTag::None ? "" : valueType(row.type) + " *Value";
        if (row.get != nullptr)
            function("get_" + narrow(row.name), row.parameters(), value, "forwardGet(" + at + ", Value");
        if (row.put != nullptr) {
            const ParameterRow put{
                .name = u"Value", .type = row.type, .byReference = row.putByReference, .optional = false};
            function("put_" + narrow(row.name), {&put, 1}, "", "forwardPut(" + at);
        }
        if (row.call != nullptr)
            function(narrow(row.name), row.parameters(), value,
                     "forwardCall(" + at + (value.empty() ? ", nullptr" : ", Value"));
    }

    void function(const std::string& name, std::span<const ParameterRow> rows, const std::string& result,
                  const std::string& call) {
        std::string declared;
        std::string passed;
        for (const ParameterRow& row : rows) {
            declared += (declared.empty() ? "" : ", ") + declaration(row);
            passed += ", " + narrow(row.name);
        }
        if (!result.empty()) declared += (declared.empty() ? "" : ", ") + result;
        Out_ << "    HRESULT STDMETHODCALLTYPE " << name << '(' << declared << ") noexcept override {\n"
             << "        return this->" << call << passed << ");\n    }\n";
    }

    std::ostream& Out_;
    const ClassModel& Model_;
};

}  // namespace

void writeForwarding(std::ostream& out, const ClassRegistry& classes) {
    out << "#pragma once\n\n#include \"KelControls8.h\"\n\nnamespace kel::win32::ole {\n\n";
    for (const ClassModel* model : classes.all()) TableWriter(out, *model).write();
    // One line a class, for whoever lists or makes them.
    out << "#define KEL_FOR_EACH_CLASS(apply)";
    for (const ClassModel* model : classes.all()) out << " apply(" << narrow(model->name) << ')';
    out << "\n\n}  // namespace kel::win32::ole\n";
}

}  // namespace kel::idl
