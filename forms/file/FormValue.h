#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "forms/file/FormEncoding.h"
#include "library/TypeModel.h"
#include "values/Variant.h"

namespace kel {

/// Where a value stands that the form file itself cannot hold: `"FILE.frx":OFFSET`.
struct FormReference {
    std::u16string file;       ///< beside the form file
    std::uint32_t offset = 0;  ///< bytes
    bool isText = false;       ///< marked with $: a text; else a picture or another control's own data
    friend bool operator==(const FormReference&, const FormReference&) = default;
};

/// A value that is kept as it stands and not understood: `{GUID}`, `^W`.
struct FormRaw {
    std::u16string text;
    friend bool operator==(const FormRaw&, const FormRaw&) = default;
};

/// A property's value as the file has it. `-1  'True` is -1; `&H80000005&` is -2147483643.
using FormValue = std::variant<std::int32_t, double, std::u16string, FormReference, FormRaw>;

/// Reads what stands after the = of a property; throws FormFault.
FormValue readFormValue(std::string_view bytes, FormEncoding encoding);

/// What the file will hold for a value that is to be written; nothing for Empty, Null, arrays, objects and
/// numbers that are not finite, which have no form in a file.
std::optional<FormValue> toFormValue(const Variant& value);

/// As the file writes it: `-1  'True`, `.75`, `"with ""quotes"""`.
std::u16string writeFormVariant(const Variant& value);
std::u16string writeFormValue(const FormValue& value);

/// True for a text that cannot stand between quotes on one line and goes into a resource file.
bool needsRecord(std::u16string_view text);

/// The value as exactly `type`, converted as automation converts: 12.5 to 12, 3 to True, 12 to "12". Nothing
/// when it does not fit, and for a text where a number is wanted. References have been read before.
std::optional<Variant> convertFormValue(const FormValue& value, TypeTag type);

}  // namespace kel
