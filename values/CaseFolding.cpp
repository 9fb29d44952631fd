#include "values/CaseFolding.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "values/Text.h"

namespace kel {

namespace {

/// Every `step`th code point from `first` to `last` folds to the one `distance` further on.
struct FoldingRange {
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t distance;
};

#include "values/CaseFolding.inc"

constexpr char32_t FirstBeyondAscii = 0x80;

char32_t foldBeyondAscii(char32_t point) {
    const auto range = std::lower_bound(std::begin(Foldings), std::end(Foldings), point,
                                        [](const FoldingRange& r, char32_t p) { return r.last < p; });
    if (range == std::end(Foldings) || point < range->first || (point - range->first) % range->step != 0) return point;
    return point + static_cast<char32_t>(range->distance);
}

char32_t takeFolded(std::u16string_view& text) { return foldCase(takeCodePoint(text)); }

/// Takes what is the same to the unit off both, no half pair.
void skipSame(std::u16string_view& left, std::u16string_view& right) {
    const std::size_t most = std::min(left.size(), right.size());
    std::size_t same = 0;
    while (same < most && left[same] == right[same]) ++same;
    if (same > 0 && isHighSurrogate(left[same - 1])) --same;
    left.remove_prefix(same);
    right.remove_prefix(same);
}

/// Takes what both begin with off both.
void skipCommon(std::u16string_view& left, std::u16string_view& right) {
    for (;;) {
        skipSame(left, right);
        if (left.empty() || right.empty()) return;
        std::u16string_view leftRest = left, rightRest = right;
        if (takeFolded(leftRest) != takeFolded(rightRest)) return;
        left = leftRest;
        right = rightRest;
    }
}

}  // namespace

char32_t foldCase(char32_t point) {
    if (point < FirstBeyondAscii) return toLowerAscii(static_cast<char16_t>(point));
    return foldBeyondAscii(point);
}

int compareFolded(std::u16string_view left, std::u16string_view right) {
    skipCommon(left, right);
    if (left.empty() || right.empty()) return static_cast<int>(right.empty()) - static_cast<int>(left.empty());
    return takeFolded(left) < takeFolded(right) ? -1 : 1;
}

int compareFoldedBeginning(std::u16string_view text, std::u16string_view beginning) {
    skipCommon(text, beginning);
    if (beginning.empty()) return 0;
    return text.empty() || takeFolded(text) < takeFolded(beginning) ? -1 : 1;
}

}  // namespace kel
