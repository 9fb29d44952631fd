#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Comma-separated lists with double quotes: `a,"b,c","say ""hi"""` holds a / b,c / say "hi".
namespace kel {

/// Puts `item` after the items of `list`; items with a separator or a quote are quoted.
/// An empty item appended to an empty list gives `""`, so that it is not mistaken for no item.
void appendListItem(std::u16string& list, std::u16string_view item);

/// The field of `text` that begins at `position`, unquoted; `position` moves after its separator, and to
/// -1 on the read after the last field.
std::u16string readListField(std::u16string_view text, std::int32_t& position, char16_t separator);

}  // namespace kel
