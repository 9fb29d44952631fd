#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace kel {

/// The items of a list, in order. Their texts stand in one buffer, so that a list of any length is moved at no
/// cost. A list that is moved from is empty.
///
/// Finding an item costs the same in long lists as in short ones: the first search of a kind builds an index, which
/// the next `add` drops. The index is made behind a const search: a list is for one thread.
class ListItems {
public:
    static constexpr std::int32_t NotFound = -1;

    /// Makes room for so many items with so many UTF-16 units together.
    void reserve(std::size_t items, std::size_t units);
    /// `item` is none of this list's own texts.
    void add(std::u16string_view item);

    /// The same items in the same order.
    bool operator==(const ListItems& other) const { return Units_ == other.Units_ && Ends_ == other.Ends_; }

    std::int32_t size() const { return static_cast<std::int32_t>(Ends_.size()); }
    bool contains(std::int32_t index) const { return index >= 0 && index < size(); }
    /// Valid until an item is added. `index` counts from 0 and is below `size`.
    std::u16string_view item(std::int32_t index) const;

    /// The first item that is `text`.
    std::int32_t findExact(std::u16string_view text) const;
    /// The first item that begins with `beginning`, without regard to case. An empty one finds nothing.
    std::int32_t findPrefix(std::u16string_view beginning) const;

private:
    using Position = std::uint32_t;
    using Range = std::pair<std::size_t, std::size_t>;  ///< of places in the order

    void indexTexts() const;
    void indexBeginnings() const;
    std::size_t slotOf(std::u16string_view text) const;
    Range sortedRange(std::u16string_view beginning) const;
    Position smallestOf(std::size_t first, std::size_t end) const;
    std::u16string_view at(Position position) const { return item(static_cast<std::int32_t>(position)); }

    /// Fewer items are looked through faster than any index.
    static constexpr std::int32_t FewItems = 16;

    std::vector<char16_t> Units_;
    std::vector<std::size_t> Ends_;  ///< of each item, in `Units_`

    /// A hash table of the first of every equal items, counted from 1; 0 is a free slot. Empty until searched.
    mutable std::vector<Position> Slots_;
    /// A tree of minima, root at 1, over the positions in the order of their items without regard to case; these
    /// are its second half. Empty until searched.
    mutable std::vector<Position> Sorted_;
};

}  // namespace kel
