#include "tools/qtwidgets/QtType.h"

#include <stdexcept>

#include "values/Text.h"

namespace kel::qtwidgets {

const QtType& qtTypeOf(TypeTag type) {
    static constexpr QtType String{"QString", "QString", "toText", "fromText", false, "{}"};
    static constexpr QtType Boolean{"bool", "", "toFlag", "fromFlag", true, "false"};
    static constexpr QtType Short{"int", "", "toInteger", "fromShort", true, "0"};
    static constexpr QtType Integer{"int", "", "toInteger", "fromInteger", true, "0"};
    static constexpr QtType Days{"DaysFlag", "", "toEnum<DaysFlag>", "fromEnum", true, "{}"};
    static constexpr QtType Double{"double", "", "toNumber", "fromNumber", true, "0"};
    static constexpr QtType Date{"QDateTime", "QDateTime", "toDateTime", "fromDateTime", false, "{}"};
    static constexpr QtType Any{"QVariant", "QVariant", "toQVariant", "fromQVariant", false, "{}"};
    static constexpr QtType Strings{"QStringList", "QStringList", "toTexts", "fromTexts", false, "{}"};
    switch (type) {
        case TypeTag::String: return String;
        case TypeTag::Boolean: return Boolean;
        case TypeTag::Integer16: return Short;
        case TypeTag::Integer32: return Integer;
        case TypeTag::DaysFlag: return Days;
        case TypeTag::Double: return Double;
        case TypeTag::Date: return Date;
        case TypeTag::Any: return Any;
        case TypeTag::Strings: return Strings;
        case TypeTag::None:
        case TypeTag::Object: break;
    }
    throw std::runtime_error("no Qt type shows a value of type " + toUtf8(nameOf(type)));
}

std::string valueParameterType(TypeTag type) {
    const QtType& qt = qtTypeOf(type);
    return qt.isPlain ? std::string(qt.name) + " " : "const " + std::string(qt.name) + "& ";
}

std::string parameterType(const ParameterRow& parameter) {
    if (parameter.byReference) return std::string(qtTypeOf(parameter.type).name) + "& ";
    return valueParameterType(parameter.type);
}

std::string lowerName(std::u16string_view name) {
    std::u16string lower(name);
    lower.front() = toLowerAscii(lower.front());
    return toUtf8(lower);
}

std::string setterName(std::u16string_view name) { return "set" + toUtf8(name); }

}  // namespace kel::qtwidgets
