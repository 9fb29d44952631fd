#include "forms/file/FormUniqueness.h"

#include <algorithm>

#include "values/Text.h"

namespace kel {

namespace {

/// By name; those without an index in front, then by index, then as in the file.
std::vector<const FormBlock*> controlsByName(const std::vector<FormBlock>& blocks) {
    std::vector<const FormBlock*> sorted;
    for (const FormBlock& block : blocks) {
        if (block.parent != NoFormBlock) sorted.push_back(&block);
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const FormBlock* left, const FormBlock* right) {
        if (!equalsIgnoringCase(left->name, right->name)) return NameOrder{}(left->name, right->name);
        return left->index < right->index;
    });
    return sorted;
}

std::string messageFor(const FormBlock& block, std::size_t firstLine) {
    const std::string index =
        block.index ? " with the index " + std::to_string(*block.index) : " (a control array needs an Index in each)";
    return "the name " + toUtf8(block.name) + index + " is taken by the block of line " + std::to_string(firstLine);
}

}  // namespace

void requireUniqueNames(NamedLines names) {
    std::stable_sort(names.begin(), names.end(),
                     [](const NamedLine& left, const NamedLine& right) { return NameOrder{}(left.name, right.name); });
    const auto again = std::adjacent_find(
        names.begin(), names.end(),
        [](const NamedLine& left, const NamedLine& right) { return equalsIgnoringAsciiCase(left.name, right.name); });
    if (again == names.end()) return;
    throw PlacedFormFault{std::next(again)->line, excerptOf(again->name) + " stands in this block already, in line " +
                                                      std::to_string(again->line)};
}

void requireUniqueBlocks(const std::vector<FormBlock>& blocks) {
    const std::vector<const FormBlock*> sorted = controlsByName(blocks);
    const auto clash =
        std::adjacent_find(sorted.begin(), sorted.end(), [](const FormBlock* left, const FormBlock* right) {
            return equalsIgnoringCase(left->name, right->name) && (!left->index || left->index == right->index);
        });
    if (clash == sorted.end()) return;
    const auto [first, second] = std::minmax(*clash, *std::next(clash),
                                             [](const FormBlock* a, const FormBlock* b) { return a->line < b->line; });
    throw PlacedFormFault{second->line, messageFor(*second, first->line)};
}

}  // namespace kel
