#pragma once

#include <cstddef>
#include <string_view>

/// Where a caret may stand and what a key passes over. Positions count UTF-16 units from 0 to the text's size
/// inclusive; one past the end counts as the end. The result is a position too: the end when there is nothing
/// further on, 0 when there is nothing further back.
///
/// `multiLine` makes a carriage return and line feed pair one unit and one line end. Without it the pair is two
/// ordinary characters and the whole text is one line. A lone carriage return or line feed ends no line.
namespace kel {

/// The end of the character at `position` as a reader counts characters: a letter with its combining marks, a
/// joined emoji sequence or a flag is one.
std::size_t nextCharacter(std::u16string_view text, std::size_t position, bool multiLine);
std::size_t previousCharacter(std::u16string_view text, std::size_t position, bool multiLine);

/// The end of the character that begins at `start`: what `nextCharacter` gives there, without a look at the text in
/// front, so that walking along a line of flags takes no longer than along letters.
std::size_t characterEnd(std::u16string_view text, std::size_t start, bool multiLine);

/// The same for code points: only the two halves of a surrogate pair belong together.
std::size_t nextCodePoint(std::u16string_view text, std::size_t position, bool multiLine);
std::size_t previousCodePoint(std::u16string_view text, std::size_t position, bool multiLine);

/// The start of the next word, or of the word before `position`. Punctuation is a word of its own, blanks belong
/// to the word in front of them. A line end is a stop of its own.
std::size_t nextWord(std::u16string_view text, std::size_t position, bool multiLine);
std::size_t previousWord(std::u16string_view text, std::size_t position, bool multiLine);

/// The ends of the line that holds `position`, its line break not included.
std::size_t lineStart(std::u16string_view text, std::size_t position, bool multiLine);
std::size_t lineEnd(std::u16string_view text, std::size_t position, bool multiLine);

/// `position`, or the place just in front of it where it would cut a surrogate pair or a line break in two.
std::size_t snapDown(std::u16string_view text, std::size_t position, bool multiLine);

}  // namespace kel
