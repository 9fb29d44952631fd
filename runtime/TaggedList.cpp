#include "runtime/TaggedList.h"

#include <algorithm>

#include "runtime/ListString.h"

namespace kel {

TaggedList taggedListOf(std::u16string_view items, std::u16string_view tags) {
    TaggedList list;
    std::int32_t position = items.empty() ? -1 : 0;
    std::int32_t tagPosition = tags.empty() ? -1 : 0;
    while (position >= 0) {
        std::u16string item = readListField(items, position, u',');
        if (position < 0) break;
        std::u16string tag = tagPosition < 0 ? std::u16string() : readListField(tags, tagPosition, u',');
        list.push_back({std::move(item), std::move(tag)});
    }
    return list;
}

std::u16string itemsOf(const TaggedList& list) {
    std::u16string items;
    for (const TaggedItem& entry : list) appendListItem(items, entry.item);
    return items;
}

std::u16string tagsOf(const TaggedList& list) {
    const auto end =
        std::find_if(list.rbegin(), list.rend(), [](const TaggedItem& entry) { return !entry.tag.empty(); });
    std::u16string tags;
    std::for_each(list.begin(), end.base(), [&tags](const TaggedItem& entry) { appendListItem(tags, entry.tag); });
    return tags;
}

TaggedList taggedLines(std::u16string_view text) {
    const std::size_t last = text.find_last_not_of(u"\r\n");
    text = text.substr(0, last == std::u16string_view::npos ? 0 : last + 1);
    TaggedList list;
    while (!text.empty()) {
        std::u16string_view line = text.substr(0, text.find_first_of(u"\r\n"));
        text.remove_prefix(line.size());
        text.remove_prefix(text.starts_with(u"\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
        const std::size_t tab = line.find(u'\t');
        list.push_back(
            {std::u16string(line.substr(0, tab)),
             std::u16string(tab == std::u16string_view::npos ? std::u16string_view() : line.substr(tab + 1))});
    }
    return list;
}

}  // namespace kel
