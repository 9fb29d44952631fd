// Prints the code points that the caret never stands in front of, those that nothing joins, and those that the
// zero-width joiner binds together, as Qt's text boundaries treat them. TextBoundaries.cpp includes the result.

#include <cstdio>
#include <initializer_list>
#include <QChar>
#include <QString>
#include <QTextBoundaryFinder>
#include <vector>

namespace {

struct CodePointRange {
    char32_t first;
    char32_t last;
};

constexpr char32_t Joiner = 0x200D;
constexpr char32_t ThaiLetter = 0x0E01;
constexpr char32_t PointCount = 0x110000;

bool isOneCharacter(std::initializer_list<char32_t> points) {
    QString text;
    for (const char32_t point : points) text += QChar::fromUcs4(point);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return finder.toNextBoundary() == text.size();
}

/// One Thai vowel sign joins Thai letters only.
bool joinsLetter(char32_t point) { return isOneCharacter({U'a', point}) || isOneCharacter({ThaiLetter, point}); }

bool takesLetter(char32_t point) { return isOneCharacter({point, U'a'}); }

bool isControl(char32_t point) {
    switch (QChar::category(point)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph: return !joinsLetter(point) && !takesLetter(point);
        default: return false;
    }
}

bool joinsByJoiner(char32_t point) { return !joinsLetter(point) && isOneCharacter({point, Joiner, point}); }

/// Nothing but unassigned code points lie strictly between two ranges.
bool isGapUnassigned(char32_t before, char32_t after) {
    for (char32_t point = before + 1; point < after; ++point) {
        if (QChar::category(point) != QChar::Other_NotAssigned) return false;
    }
    return true;
}

/// Ranges with nothing but unassigned code points between them become one: a shorter table, the same carets.
std::vector<CodePointRange> rangesOf(bool (*belongs)(char32_t)) {
    std::vector<CodePointRange> ranges;
    for (char32_t point = 0; point < PointCount; ++point) {
        if (QChar::isSurrogate(point) || !belongs(point)) continue;
        if (!ranges.empty() && isGapUnassigned(ranges.back().last, point)) {
            ranges.back().last = point;
        } else {
            ranges.push_back({point, point});
        }
    }
    return ranges;
}

void printTable(const char* comment, const char* name, const std::vector<CodePointRange>& ranges) {
    constexpr std::size_t PerLine = 5;
    std::printf("\n/// %s\nconstexpr CodePointRange %s[] = {", comment, name);
    for (std::size_t at = 0; at < ranges.size(); ++at) {
        const char* gap = at % PerLine == 0 ? "\n    " : " ";
        std::printf("%s{0x%04X, 0x%04X},", gap, unsigned{ranges[at].first}, unsigned{ranges[at].last});
    }
    std::printf("\n};\n");
}

}  // namespace

int main() {
    std::printf("// Generated from the Unicode data of Qt %s; do not edit. tools/boundaries/CMakeLists.txt says how.\n",
                qVersion());
    printTable("Code points that belong to the character in front of them.", "JoiningCharacters",
               rangesOf(joinsLetter));
    printTable("Controls and formatting characters, which nothing joins.", "Controls", rangesOf(isControl));
    printTable("Code points that the joiner makes one with the next of them.", "Pictures", rangesOf(joinsByJoiner));
    return 0;
}
