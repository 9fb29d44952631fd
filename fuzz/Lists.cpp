#include <vector>

#include "controls/combo/ListText.h"
#include "fuzz/Fuzz.h"
#include "runtime/ListString.h"

namespace kel::fuzz {
namespace {

StringArray fieldsOf(std::u16string_view list, char16_t separator) {
    StringArray fields;
    for (std::int32_t position = 0;;) {
        const std::int32_t before = position;
        std::u16string field = readListField(list, position, separator);
        if (position < 0) return fields;
        require(position > before, "a field that is read moves on", {list});
        fields.push_back(std::move(field));
    }
}

StringArray itemsOf(const ListItems& items) {
    StringArray texts;
    for (std::int32_t i = 0; i < items.size(); ++i) texts.emplace_back(items.item(i));
    return texts;
}

void checkReading(std::u16string_view list) {
    StringArray fields = fieldsOf(list, u',');
    const ListItems items = listItemsOf(list);
    require(items.size() <= MostListItems, "a list has no more items than a combo counts");
    if (fields.size() > MostListItems) fields.resize(MostListItems);
    require(list.empty() || itemsOf(items) == fields, "a combo and the field reader read the same", {list});
    if (!list.empty()) fieldsOf(list, list.front());
}

void checkWriting(const StringArray& items) {
    std::u16string list;
    for (const std::u16string& item : items) appendListItem(list, item);
    StringArray kept = items;
    if (kept.size() > MostListItems) kept.resize(MostListItems);
    require(itemsOf(listItemsOf(list)) == kept, "what is appended to a list reads back", {list});
    require(fieldsOf(list, u',') == items, "what is appended to a list is read field by field", {list});
}

/// However many items there are, an index finds what looking at each of them would.
void checkFinding(const ListItems& items, std::u16string_view text) {
    std::int32_t first = 0;
    while (first < items.size() && items.item(first) != text) ++first;
    require(items.findExact(text) == (first < items.size() ? first : ListItems::NotFound),
            "the first item that is the text is found", {text});
    const std::int32_t begun = items.findPrefix(text);
    require(begun <= first || first == items.size() || text.empty(), "an item begins with itself", {text});
}

}  // namespace
}  // namespace kel::fuzz

/// The lines are the items, and all of them together a list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    checkReading(Lines(data, size).rest());
    kel::StringArray items;
    for (Lines lines(data, size); !lines.atEnd();) items.push_back(lines.next());
    if (items.empty()) return 0;
    checkWriting(items);
    checkFinding(kel::listItemsOf(items), items.back());
    return 0;
}
