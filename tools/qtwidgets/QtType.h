#pragma once

#include <string>
#include <string_view>

#include "library/TypeModel.h"

namespace kel::qtwidgets {

/// How a type of the library appears in a Qt class.
struct QtType {
    std::string_view name;       ///< "QString"
    std::string_view header;     ///< that it needs; empty for types of the language
    std::string_view toQt;       ///< function of kel::qt that takes a variant
    std::string_view toVariant;  ///< function of kel::qt that gives one
    bool isPlain = false;        ///< passed by value
    std::string_view nothing;    ///< of an argument left out
};

/// Throws std::runtime_error for a type that no Qt class can show.
const QtType& qtTypeOf(TypeTag type);

/// "const QString& " or "int ", with a reference where the argument comes back.
std::string parameterType(const ParameterRow& parameter);
std::string valueParameterType(TypeTag type);

/// "captionWidth" for CaptionWidth, "setCaptionWidth"; hWnd stays.
std::string lowerName(std::u16string_view name);
std::string setterName(std::u16string_view name);

}  // namespace kel::qtwidgets
