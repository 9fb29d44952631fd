#pragma once

#include <string_view>

#include "host/ListItems.h"
#include "values/Variant.h"

/// The lists that a combo field is given.
namespace kel {

/// What is beyond is dropped.
inline constexpr std::int32_t MostListItems = 32767;

/// The items of a comma-separated list. A comma between double quotes does not separate; one quote at the start and
/// one at the end of an item are taken off, each by itself, and two in a row stand for one. Blanks stay. The empty
/// list has no items; a comma at the end is followed by an empty item.
ListItems listItemsOf(std::u16string_view list);

/// The items as they are.
ListItems listItemsOf(const StringArray& items);

}  // namespace kel
