#include "tools/idl/TypeNames.h"

#include <stdexcept>

#include "values/Text.h"

namespace kel::idl {

const ClassIdentity& identityOf(const ClassModel& model) {
    const ClassIdentity* identity = findIdentity(model.name);
    if (identity == nullptr) throw std::runtime_error("no identity for class " + narrow(model.name));
    return *identity;
}

std::string narrow(std::u16string_view name) { return toUtf8(name); }

std::string quoted(std::u16string_view text) {
    std::string out = "\"";
    for (const char unit : toUtf8(text)) {
        if (unit == '"' || unit == '\\') out += '\\';
        out += unit;
    }
    return out + '"';
}

std::string_view typeName(TypeTag type) {
    switch (type) {
        case TypeTag::None: return "void";
        case TypeTag::String: return "BSTR";
        case TypeTag::Boolean: return "VARIANT_BOOL";
        case TypeTag::Integer16: return "short";
        case TypeTag::Integer32: return "long";
        case TypeTag::Double: return "double";
        case TypeTag::Date: return "DATE";
        case TypeTag::Any: return "VARIANT";
        case TypeTag::DaysFlag: return "KelDateDaysFlag";
        case TypeTag::Object: return "IDispatch *";
        case TypeTag::Strings: return "SAFEARRAY(BSTR)";
    }
    throw std::logic_error("a type without a name");
}

}  // namespace kel::idl
