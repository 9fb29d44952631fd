#include "host/editing/TextDifference.h"

#include <algorithm>

#include "values/Text.h"

namespace kel {

TextDifference differenceOf(std::u16string_view before, std::u16string_view now, std::size_t caret) {
    if (before == now) return {};
    const std::size_t shared = std::min(before.size(), now.size());
    const std::size_t behindCaret = std::min(now.size() - std::min(caret, now.size()), shared);
    const auto fromBack =
        std::mismatch(now.rbegin(), now.rbegin() + static_cast<std::ptrdiff_t>(behindCaret), before.rbegin());
    std::size_t tail = static_cast<std::size_t>(fromBack.first - now.rbegin());
    const auto fromFront =
        std::mismatch(now.begin(), now.begin() + static_cast<std::ptrdiff_t>(shared - tail), before.begin());
    std::size_t head = static_cast<std::size_t>(fromFront.first - now.begin());
    if (splitsPair(before, head) || splitsPair(now, head)) --head;
    if (splitsPair(before, before.size() - tail) || splitsPair(now, now.size() - tail)) --tail;
    return {head, before.size() - tail, now.size() - tail};
}

}  // namespace kel
