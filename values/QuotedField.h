#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The fields of a separated list with double quotes, one reading for all that splits such lists.
namespace kel {

/// Where the field that begins at `start` ends: at its separator, or at the text's end. Every quote on the way turns
/// quoting on or off, and a quoted separator is text.
std::size_t fieldEnd(std::u16string_view text, std::size_t start, char16_t separator);

/// Takes one quote off each end, whether or not the other end has one, and halves the doubled ones inside.
std::u16string unquoted(std::u16string_view field);

}  // namespace kel
