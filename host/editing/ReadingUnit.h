#pragma once

#include "host/editing/EditBuffer.h"

namespace kel {

/// What a text is read by.
enum class ReadingUnit { Character, Word, Line, Paragraph, Document };

/// A text as a reader goes through it. A masked one gives away no words.
struct ReadText {
    std::u16string_view text;
    const TextLines& lines;
    bool multiLine = false;
    bool masked = false;
};

/// From `start` to `end`.
struct ReadRange {
    std::size_t start = 0;
    std::size_t end = 0;
    bool empty() const { return start == end; }
    friend bool operator==(const ReadRange&, const ReadRange&) = default;
};

/// The unit that `position` is in; nothing at the end of the text, but for a line, a paragraph and the whole.
ReadRange unitAt(const ReadText& read, ReadingUnit unit, std::size_t position);

/// Takes `position` over as many beginnings of units as `count` says and there are, back when it is negative; the end
/// of the text counts as one. Returns over how many.
int moveByUnits(const ReadText& read, ReadingUnit unit, int count, std::size_t& position);

/// Takes a range as many units on, or back, and makes it one unit, where it was not empty; the end of the text is
/// none. Returns how many.
int moveByUnits(const ReadText& read, ReadingUnit unit, int count, ReadRange& range);

}  // namespace kel
