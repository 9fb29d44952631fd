#pragma once

#include <string>
#include <string_view>

#include "library/Identities.h"
#include "library/TypeModel.h"

/// The library's names and types as interface definitions write them.
namespace kel::idl {

/// Identity of a class of the library. Throws std::runtime_error for a class without one.
const ClassIdentity& identityOf(const ClassModel& model);

/// ASCII names only.
std::string narrow(std::u16string_view name);

/// A C string literal of the text, quotes included.
std::string quoted(std::u16string_view text);

/// "BSTR", "VARIANT_BOOL" and so on.
std::string_view typeName(TypeTag type);

}  // namespace kel::idl
