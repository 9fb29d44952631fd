#include "controls/combo/ListText.h"

#include <algorithm>

#include "values/QuotedField.h"

namespace kel {

namespace {

constexpr char16_t Separator = u',';
constexpr auto MostItems = static_cast<std::size_t>(MostListItems);

void addUnquoted(ListItems& items, std::u16string_view field) {
    if (field.find(u'"') == std::u16string_view::npos)
        items.add(field);
    else
        items.add(unquoted(field));
}

}  // namespace

ListItems listItemsOf(std::u16string_view list) {
    ListItems items;
    if (list.empty()) return items;
    const auto separators = static_cast<std::size_t>(std::count(list.begin(), list.end(), Separator));
    items.reserve(std::min(separators + 1, MostItems), list.size());
    for (std::size_t start = 0; start <= list.size() && items.size() < MostListItems;) {
        const std::size_t end = fieldEnd(list, start, Separator);
        addUnquoted(items, list.substr(start, end - start));
        start = end + 1;
    }
    return items;
}

ListItems listItemsOf(const StringArray& items) {
    const std::size_t count = std::min(items.size(), MostItems);
    std::size_t units = 0;
    for (std::size_t i = 0; i < count; ++i) units += items[i].size();
    ListItems loaded;
    loaded.reserve(count, units);
    for (std::size_t i = 0; i < count; ++i) loaded.add(items[i]);
    return loaded;
}

}  // namespace kel
