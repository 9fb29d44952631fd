#include "library/TypeModel.h"

namespace kel {

std::u16string_view nameOf(TypeTag type) {
    switch (type) {
        case TypeTag::None: return u"nothing";
        case TypeTag::String: return u"string";
        case TypeTag::Boolean: return u"boolean";
        case TypeTag::Integer16: return u"16-bit integer";
        case TypeTag::Integer32: return u"32-bit integer";
        case TypeTag::Double: return u"double";
        case TypeTag::Date: return u"date";
        case TypeTag::Any: return u"variant";
        case TypeTag::DaysFlag: return u"KelDateDaysFlag";
        case TypeTag::Object: return u"object";
        case TypeTag::Strings: return u"array of strings";
    }
    return u"unknown";
}

}  // namespace kel
