#include "host/ListItems.h"

#include <algorithm>
#include <bit>
#include <functional>

#include "values/CaseFolding.h"
#include "values/Text.h"

namespace kel {

namespace {

/// An item on its way into the order, with what its text begins with: nearly all comparisons end there.
struct SortedItem {
    std::uint64_t beginning;
    std::uint32_t position;
};

/// The first three characters without their case, ordered as the texts are.
std::uint64_t beginningOf(std::u16string_view text) {
    constexpr int Characters = 3, BitsOfCharacter = 21;
    std::uint64_t beginning = 0;
    for (int i = 0; i < Characters; ++i)
        beginning = beginning << BitsOfCharacter | (text.empty() ? 0 : foldCase(takeCodePoint(text)));
    return beginning;
}

}  // namespace

void ListItems::reserve(std::size_t items, std::size_t units) {
    Ends_.reserve(items);
    Units_.reserve(units);
}

void ListItems::add(std::u16string_view item) {
    Slots_.clear();
    Sorted_.clear();
    Units_.insert(Units_.end(), item.begin(), item.end());
    Ends_.push_back(Units_.size());
}

std::u16string_view ListItems::item(std::int32_t index) const {
    const auto place = static_cast<std::size_t>(index);
    const std::size_t start = place == 0 ? 0 : Ends_[place - 1];
    return {Units_.data() + start, Ends_[place] - start};
}

// ---- Whole items

std::int32_t ListItems::findExact(std::u16string_view text) const {
    if (size() <= FewItems) {
        for (std::int32_t i = 0; i < size(); ++i)
            if (item(i) == text) return i;
        return NotFound;
    }
    if (Slots_.empty()) indexTexts();
    return static_cast<std::int32_t>(Slots_[slotOf(text)]) - 1;
}

/// The slot that holds an item equal to `text`, or the free one where it would stand.
std::size_t ListItems::slotOf(std::u16string_view text) const {
    const std::size_t mask = Slots_.size() - 1;
    std::size_t slot = std::hash<std::u16string_view>()(text) & mask;
    while (Slots_[slot] != 0 && at(Slots_[slot] - 1) != text) slot = (slot + 1) & mask;
    return slot;
}

void ListItems::indexTexts() const {
    Slots_.assign(std::bit_ceil(Ends_.size() + Ends_.size() / 2), 0);
    for (Position position = 0; position < Ends_.size(); ++position) {
        Position& slot = Slots_[slotOf(at(position))];
        if (slot == 0) slot = position + 1;
    }
}

// ---- Beginnings

std::int32_t ListItems::findPrefix(std::u16string_view beginning) const {
    if (beginning.empty()) return NotFound;
    if (size() <= FewItems) {
        for (std::int32_t i = 0; i < size(); ++i)
            if (compareFoldedBeginning(item(i), beginning) == 0) return i;
        return NotFound;
    }
    if (Sorted_.empty()) indexBeginnings();
    const auto [first, end] = sortedRange(beginning);
    return first == end ? NotFound : static_cast<std::int32_t>(smallestOf(first, end));
}

void ListItems::indexBeginnings() const {
    const std::size_t count = Ends_.size();
    std::vector<SortedItem> order(count);
    for (Position position = 0; position < count; ++position) order[position] = {beginningOf(at(position)), position};
    std::sort(order.begin(), order.end(), [this](const SortedItem& left, const SortedItem& right) {
        if (left.beginning != right.beginning) return left.beginning < right.beginning;
        return compareFolded(at(left.position), at(right.position)) < 0;
    });
    Sorted_.resize(2 * count);
    for (std::size_t i = 0; i < count; ++i) Sorted_[count + i] = order[i].position;
    for (std::size_t node = count - 1; node > 0; --node)
        Sorted_[node] = std::min(Sorted_[2 * node], Sorted_[2 * node + 1]);
}

ListItems::Range ListItems::sortedRange(std::u16string_view beginning) const {
    struct Order {
        const ListItems& items;
        bool operator()(Position one, std::u16string_view wanted) const {
            return compareFoldedBeginning(items.at(one), wanted) < 0;
        }
        bool operator()(std::u16string_view wanted, Position one) const {
            return compareFoldedBeginning(items.at(one), wanted) > 0;
        }
    };
    const auto leaves = Sorted_.begin() + static_cast<std::ptrdiff_t>(Ends_.size());
    const auto [first, end] = std::equal_range(leaves, Sorted_.end(), beginning, Order{*this});
    return {static_cast<std::size_t>(first - leaves), static_cast<std::size_t>(end - leaves)};
}

/// The smallest position in a range of the order that is not empty.
ListItems::Position ListItems::smallestOf(std::size_t first, std::size_t end) const {
    const std::size_t count = Ends_.size();
    Position smallest = Sorted_[count + first];
    for (first += count, end += count; first < end; first /= 2, end /= 2) {
        if (first % 2 == 1) smallest = std::min(smallest, Sorted_[first++]);
        if (end % 2 == 1) smallest = std::min(smallest, Sorted_[--end]);
    }
    return smallest;
}

}  // namespace kel
