#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A list whose items have tags, as designers edit both side by side; kept as two comma-separated lists.
namespace kel {

struct TaggedItem {
    std::u16string item;
    std::u16string tag;
    friend bool operator==(const TaggedItem&, const TaggedItem&) = default;
};

using TaggedList = std::vector<TaggedItem>;

/// Items without a tag have an empty one; tags without an item are dropped.
TaggedList taggedListOf(std::u16string_view items, std::u16string_view tags);

std::u16string itemsOf(const TaggedList& list);
/// Up to the last one that is not empty: a list without tags has the empty text.
std::u16string tagsOf(const TaggedList& list);

/// One item a line, with a tab in front of its tag. Blank lines at the end are none.
TaggedList taggedLines(std::u16string_view text);

}  // namespace kel
