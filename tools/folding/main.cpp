// Prints which characters fold to which others when case does not matter, as Qt's Unicode data have it.
// CaseFolding.cpp includes the result.

#include <cstdint>
#include <cstdio>
#include <QChar>
#include <vector>

namespace {

struct Folding {
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t distance;
};

constexpr char32_t PointCount = 0x110000;
constexpr char32_t WidestStep = 2;  ///< where capital and small letters alternate

bool extend(Folding& run, char32_t point, std::int32_t distance) {
    const char32_t step = point - run.last;
    const bool begins = run.first == run.last && step <= WidestStep;
    if (distance != run.distance || (!begins && step != run.step)) return false;
    run.step = step;
    run.last = point;
    return true;
}

std::vector<Folding> foldings() {
    std::vector<Folding> runs;
    for (char32_t point = 0; point < PointCount; ++point) {
        const auto distance = static_cast<std::int32_t>(QChar::toCaseFolded(point)) - static_cast<std::int32_t>(point);
        if (QChar::isSurrogate(point) || distance == 0) continue;
        if (runs.empty() || !extend(runs.back(), point, distance)) runs.push_back({point, point, 1, distance});
    }
    return runs;
}

}  // namespace

int main() {
    constexpr std::size_t PerLine = 4;
    std::printf("// Generated from the Unicode data of Qt %s; do not edit. tools/folding/CMakeLists.txt says how.\n\n",
                qVersion());
    std::printf("constexpr FoldingRange Foldings[] = {");
    std::size_t count = 0;
    for (const Folding& run : foldings()) {
        std::printf("%s{0x%04X, 0x%04X, %u, %d},", count++ % PerLine == 0 ? "\n    " : " ", unsigned{run.first},
                    unsigned{run.last}, unsigned{run.step}, run.distance);
    }
    std::printf("\n};\n");
    return 0;
}
