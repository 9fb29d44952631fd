#include "host/editing/ReadingUnit.h"

#include "values/TextBoundaries.h"

namespace kel {

namespace {

/// Lines may be empty, also the one after the last line break; there is no empty character or word.
bool begins(const ReadText& read, ReadingUnit unit, std::size_t position) {
    const ReadRange there = unitAt(read, unit, position);
    const bool mayBeEmpty = unit == ReadingUnit::Line || unit == ReadingUnit::Paragraph;
    return there.start == position && (mayBeEmpty || !there.empty());
}

}  // namespace

ReadRange unitAt(const ReadText& read, ReadingUnit unit, std::size_t position) {
    const std::u16string_view text = read.text;
    const std::size_t further = nextCharacter(text, position, read.multiLine);
    switch (unit) {
        case ReadingUnit::Character:
            if (position >= text.size()) return {text.size(), text.size()};
            return {previousCharacter(text, further, read.multiLine), further};
        case ReadingUnit::Word: {
            if (read.masked) return {0, text.size()};
            if (position >= text.size()) return {text.size(), text.size()};
            const std::size_t start = previousWord(text, further, read.multiLine);
            return {start, nextWord(text, start, read.multiLine)};
        }
        case ReadingUnit::Line: {
            const TextLine line = read.lines.lineAt(position);
            return {line.start, line.isLast ? text.size() : line.next};
        }
        case ReadingUnit::Paragraph:
            return {lineStart(text, position, read.multiLine),
                    nextCharacter(text, lineEnd(text, position, read.multiLine), read.multiLine)};
        case ReadingUnit::Document: break;
    }
    return {0, text.size()};
}

int moveByUnits(const ReadText& read, ReadingUnit unit, int count, std::size_t& position) {
    int moved = 0;
    while (moved < count && position < read.text.size()) {
        position = unitAt(read, unit, position).end;
        ++moved;
    }
    while (moved > count && position > 0) {
        position = unitAt(read, unit, previousCharacter(read.text, position, read.multiLine)).start;
        --moved;
    }
    return moved;
}

int moveByUnits(const ReadText& read, ReadingUnit unit, int count, ReadRange& range) {
    if (range.empty()) {
        const int moved = moveByUnits(read, unit, count, range.start);
        range.end = range.start;
        return moved;
    }
    range = unitAt(read, unit, range.start);
    int moved = 0;
    if (count < 0) moved = moveByUnits(read, unit, count, range.start);
    while (moved < count && range.end > range.start && begins(read, unit, range.end)) {
        range = unitAt(read, unit, range.end);
        ++moved;
    }
    range = unitAt(read, unit, range.start);
    return moved;
}

}  // namespace kel
