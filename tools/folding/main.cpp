// Prints tables of characters as Qt's Unicode data have them:
//   kel-folding         which fold to which others when case does not matter; CaseFolding.cpp includes the result
//   kel-folding plain   which small letters are another one with accents; Finder.cpp includes it

#include <cstdint>
#include <cstdio>
#include <QChar>
#include <QString>
#include <string_view>
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

/// The letter without its accents; itself where it has none.
char32_t plainOf(char32_t point) {
    const QString parts = QString::fromUcs4(&point, 1).normalized(QString::NormalizationForm_D);
    if (parts.size() < 2 || parts[0].isSurrogate()) return point;
    return parts[0].unicode();
}

void printPlainLetters() {
    constexpr char32_t LastWithAccents = 0x1FFF;  ///< after it are scripts that write in other ways
    constexpr std::size_t PerLine = 6;
    std::printf("constexpr PlainLetter PlainLetters[] = {");
    std::size_t count = 0;
    for (char32_t point = 0xC0; point <= LastWithAccents; ++point) {
        if (!QChar::isLetter(point) || QChar::toCaseFolded(point) != point || plainOf(point) == point) continue;
        std::printf("%s{0x%04X, 0x%04X},", count++ % PerLine == 0 ? "\n    " : " ", unsigned{point},
                    unsigned{plainOf(point)});
    }
    std::printf("\n};\n");
}

void printFoldings() {
    constexpr std::size_t PerLine = 4;
    std::printf("constexpr FoldingRange Foldings[] = {");
    std::size_t count = 0;
    for (const Folding& run : foldings()) {
        std::printf("%s{0x%04X, 0x%04X, %u, %d},", count++ % PerLine == 0 ? "\n    " : " ", unsigned{run.first},
                    unsigned{run.last}, unsigned{run.step}, run.distance);
    }
    std::printf("\n};\n");
}

}  // namespace

int main(int count, char** arguments) {
    std::printf("// Generated from the Unicode data of Qt %s; do not edit. tools/folding/CMakeLists.txt says how.\n\n",
                qVersion());
    if (count > 1 && std::string_view(arguments[1]) == "plain")
        printPlainLetters();
    else
        printFoldings();
    return 0;
}
