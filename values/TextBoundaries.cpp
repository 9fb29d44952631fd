#include "values/TextBoundaries.h"

#include <algorithm>
#include <iterator>

#include "values/Text.h"

namespace kel {

namespace {

struct CodePointRange {
    char32_t first;
    char32_t last;
};

#include "values/JoiningCharacters.inc"

constexpr std::u16string_view LineBreak = u"\r\n";
constexpr std::u16string_view WordSeparators = u".,?!@#$:;-<>[](){}=/+%&^*'\"`~|\\";
constexpr char32_t Joiner = 0x200D;
constexpr char32_t FirstJoining = 0x0300;

template <std::size_t Count>
bool isIn(const CodePointRange (&ranges)[Count], char32_t point) {
    const auto after = std::upper_bound(std::begin(ranges), std::end(ranges), point,
                                        [](char32_t p, const CodePointRange& range) { return p < range.first; });
    return after != std::begin(ranges) && point <= std::prev(after)->last;
}

constexpr bool isBetween(char32_t point, char32_t first, char32_t last) { return point >= first && point <= last; }

/// Joins the character in front of it: a combining mark, a variation selector, the joiner, a skin tone.
bool isJoining(char32_t point) { return point >= FirstJoining && isIn(JoiningCharacters, point); }

/// Nothing joins a control, a formatting character or half a pair.
bool isControl(char32_t point) { return isBetween(point, 0xD800, 0xDFFF) || isIn(Controls, point); }

/// Two of these are the flag of a region.
constexpr bool isFlagLetter(char32_t point) { return isBetween(point, 0x1F1E6, 0x1F1FF); }

enum class Hangul { None, Lead, Vowel, Trail, OpenSyllable, ClosedSyllable };

constexpr Hangul hangulOf(char32_t point) {
    if (isBetween(point, 0xAC00, 0xD7A3)) {
        return (point - 0xAC00) % 28 == 0 ? Hangul::OpenSyllable : Hangul::ClosedSyllable;
    }
    if (isBetween(point, 0x1100, 0x115F) || isBetween(point, 0xA960, 0xA97C)) return Hangul::Lead;
    if (isBetween(point, 0x1160, 0x11A7) || isBetween(point, 0xD7B0, 0xD7C6)) return Hangul::Vowel;
    if (isBetween(point, 0x11A8, 0x11FF) || isBetween(point, 0xD7CB, 0xD7FB)) return Hangul::Trail;
    return Hangul::None;
}

/// Letters of one Korean syllable that is written in parts.
constexpr bool joinsSyllable(Hangul before, Hangul after) {
    switch (after) {
        case Hangul::None: return false;
        case Hangul::Lead:
        case Hangul::OpenSyllable:
        case Hangul::ClosedSyllable: return before == Hangul::Lead;
        case Hangul::Vowel: return before == Hangul::Lead || before == Hangul::Vowel || before == Hangul::OpenSyllable;
        case Hangul::Trail: return before != Hangul::None && before != Hangul::Lead;
    }
    return false;
}

/// The second consonant of an Indic conjunct, after the sign that takes the vowel from the first. In these scripts'
/// blocks the letters and that sign stand at the same places.
constexpr bool joinsConjunct(char32_t before, char32_t after) {
    const char32_t block = after & ~char32_t{0x7F};
    const bool hasConjuncts =
        block == 0x0900 || block == 0x0980 || block == 0x0A80 || block == 0x0B00 || block == 0x0C00 || block == 0x0D00;
    const char32_t place = after - block;
    return hasConjuncts && before == block + 0x4D && (isBetween(place, 0x15, 0x39) || isBetween(place, 0x58, 0x5F));
}

char32_t joinPair(char16_t high, char16_t low) { return 0x10000U + ((high & 0x3FFU) << 10) + (low & 0x3FFU); }

char32_t codePointAt(std::u16string_view text, std::size_t position) {
    return splitsPair(text, position + 1) ? joinPair(text[position], text[position + 1]) : char32_t{text[position]};
}

std::size_t codePointStartBefore(std::u16string_view text, std::size_t position) {
    return splitsPair(text, position - 1) ? position - 2 : position - 1;
}

char32_t codePointBefore(std::u16string_view text, std::size_t position) {
    return codePointAt(text, codePointStartBefore(text, position));
}

/// Whether `position` has an odd count of flag letters in front of it, so that the next one completes a flag. `known`
/// is the end of some character, and no flag goes across it.
bool isInsideFlag(std::u16string_view text, std::size_t position, std::size_t known) {
    bool odd = false;
    while (position > known && isFlagLetter(codePointBefore(text, position))) {
        odd = !odd;
        position = codePointStartBefore(text, position);
    }
    return odd;
}

/// Whether a picture, its marks and a joiner stand in front of `position`.
bool followsJoinedPicture(std::u16string_view text, std::size_t position) {
    while (position > 0 && isJoining(codePointBefore(text, position))) position = codePointStartBefore(text, position);
    return position > 0 && isIn(Pictures, codePointBefore(text, position));
}

bool splitsLineBreak(std::u16string_view text, std::size_t position) {
    return position > 0 && position < text.size() && text[position - 1] == u'\r' && text[position] == u'\n';
}

/// Whether the caret may not stand here because it would cut one code point or line break in two.
bool splitsUnit(std::u16string_view text, std::size_t position, bool multiLine) {
    return splitsPair(text, position) || (multiLine && splitsLineBreak(text, position));
}

bool splitsCharacterAfter(std::size_t known, std::u16string_view text, std::size_t position, bool multiLine) {
    if (position == 0 || position >= text.size()) return false;
    if (splitsUnit(text, position, multiLine)) return true;
    if (text[position] < FirstJoining && text[position - 1] < FirstJoining) return false;
    const char32_t before = codePointBefore(text, position);
    const char32_t after = codePointAt(text, position);
    if (isControl(before) || isControl(after)) return false;
    if (isJoining(after) || joinsSyllable(hangulOf(before), hangulOf(after)) || joinsConjunct(before, after))
        return true;
    if (isFlagLetter(after)) return isInsideFlag(text, position, known);
    return before == Joiner && isIn(Pictures, after) && followsJoinedPicture(text, position);
}

bool splitsCharacter(std::u16string_view text, std::size_t position, bool multiLine) {
    return splitsCharacterAfter(0, text, position, multiLine);
}

template <class Splits>
std::size_t nextStop(std::u16string_view text, std::size_t position, bool multiLine, Splits splits) {
    if (position >= text.size()) return text.size();
    do {
        ++position;
    } while (splits(text, position, multiLine));
    return position;
}

template <class Splits>
std::size_t previousStop(std::u16string_view text, std::size_t position, bool multiLine, Splits splits) {
    position = std::min(position, text.size());
    if (position == 0) return 0;
    do {
        --position;
    } while (splits(text, position, multiLine));
    return position;
}

constexpr bool isSpace(char16_t unit) {
    return isBetween(unit, 0x09, 0x0D) || unit == 0x20 || unit == 0x85 || unit == 0xA0 || unit == 0x1680 ||
           isBetween(unit, 0x2000, 0x200A) || isBetween(unit, 0x2028, 0x2029) || unit == 0x202F || unit == 0x205F ||
           unit == 0x3000;
}

constexpr bool isWordSeparator(char16_t unit) { return WordSeparators.find(unit) != std::u16string_view::npos; }

constexpr bool isWordPart(char16_t unit) { return !isSpace(unit) && !isWordSeparator(unit); }

template <class Belongs>
std::size_t skipForward(std::u16string_view text, std::size_t position, std::size_t end, Belongs belongs) {
    while (position < end && belongs(text[position])) ++position;
    return position;
}

template <class Belongs>
std::size_t skipBack(std::u16string_view text, std::size_t position, std::size_t start, Belongs belongs) {
    while (position > start && belongs(text[position - 1])) --position;
    return position;
}

}  // namespace

std::size_t nextCharacter(std::u16string_view text, std::size_t position, bool multiLine) {
    return nextStop(text, position, multiLine, splitsCharacter);
}

std::size_t characterEnd(std::u16string_view text, std::size_t start, bool multiLine) {
    return nextStop(text, start, multiLine, [start](std::u16string_view whole, std::size_t position, bool lines) {
        return splitsCharacterAfter(start, whole, position, lines);
    });
}

std::size_t previousCharacter(std::u16string_view text, std::size_t position, bool multiLine) {
    return previousStop(text, position, multiLine, splitsCharacter);
}

std::size_t nextCodePoint(std::u16string_view text, std::size_t position, bool multiLine) {
    return nextStop(text, position, multiLine, splitsUnit);
}

std::size_t previousCodePoint(std::u16string_view text, std::size_t position, bool multiLine) {
    return previousStop(text, position, multiLine, splitsUnit);
}

std::size_t nextWord(std::u16string_view text, std::size_t position, bool multiLine) {
    position = snapDown(text, position, multiLine);
    const std::size_t end = lineEnd(text, position, multiLine);
    if (position == end) return std::min(end + LineBreak.size(), text.size());
    position = isWordSeparator(text[position]) ? skipForward(text, position, end, isWordSeparator)
                                               : skipForward(text, position, end, isWordPart);
    return skipForward(text, position, end, isSpace);
}

std::size_t previousWord(std::u16string_view text, std::size_t position, bool multiLine) {
    position = snapDown(text, position, multiLine);
    const std::size_t start = lineStart(text, position, multiLine);
    if (position == start) return start - std::min(start, LineBreak.size());
    position = skipBack(text, position, start, isSpace);
    if (position > start && isWordSeparator(text[position - 1])) {
        return skipBack(text, position, start, isWordSeparator);
    }
    return skipBack(text, position, start, isWordPart);
}

std::size_t lineStart(std::u16string_view text, std::size_t position, bool multiLine) {
    if (!multiLine) return 0;
    const std::u16string_view front = text.substr(0, snapDown(text, position, multiLine));
    const std::size_t found = front.rfind(LineBreak);
    return found == std::u16string_view::npos ? 0 : found + LineBreak.size();
}

std::size_t lineEnd(std::u16string_view text, std::size_t position, bool multiLine) {
    if (!multiLine) return text.size();
    return std::min(text.find(LineBreak, snapDown(text, position, multiLine)), text.size());
}

std::size_t snapDown(std::u16string_view text, std::size_t position, bool multiLine) {
    position = std::min(position, text.size());
    return splitsUnit(text, position, multiLine) ? position - 1 : position;
}

}  // namespace kel
