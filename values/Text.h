#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// UTF-16 text: the units that carets, selections and lengths are counted in on every platform.
namespace kel {

constexpr bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }
constexpr bool isHalfPair(char32_t point) { return point >= 0xD800 && point <= 0xDFFF; }

/// True where a cut at `position` would separate the two halves of a surrogate pair.
constexpr bool splitsPair(std::u16string_view text, std::size_t position) {
    return position > 0 && position < text.size() && isHighSurrogate(text[position - 1]) &&
           isLowSurrogate(text[position]);
}

/// The longest beginning of `text` with at most `units` UTF-16 units that ends on no half pair.
constexpr std::u16string_view headOf(std::u16string_view text, std::size_t units) {
    if (units >= text.size()) return text;
    return text.substr(0, splitsPair(text, units) ? units - 1 : units);
}

/// Takes the first character off `text`, which is not empty; a half pair comes as it is.
constexpr char32_t takeCodePoint(std::u16string_view& text) {
    const bool pair = splitsPair(text, 1);
    const char32_t code = pair ? 0x10000U + ((text[0] & 0x3FFU) << 10U) + (text[1] & 0x3FFU) : text[0];
    text.remove_prefix(pair ? 2 : 1);
    return code;
}

/// The one or two units of a character.
void appendCodePoint(std::u16string& text, char32_t code);

constexpr bool isLowerAscii(char16_t unit) { return unit >= u'a' && unit <= u'z'; }
constexpr bool isUpperAscii(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

constexpr char16_t toLowerAscii(char16_t unit) { return isUpperAscii(unit) ? static_cast<char16_t>(unit + 32) : unit; }

/// Equality without regard to the case of ASCII letters, as member and property names are compared.
constexpr bool equalsIgnoringCase(std::u16string_view left, std::u16string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char16_t a, char16_t b) { return toLowerAscii(a) == toLowerAscii(b); });
}

/// What becomes of half a surrogate pair, which UTF-8 has no form for.
enum class HalfPairs : std::uint8_t {
    Replaced,  ///< written as U+FFFD, not read
    Kept       ///< written and read as the number that it is, in three bytes; other programs take that for no UTF-8
};

bool hasHalfPair(std::u16string_view text);

/// UTF-8 for files and terminals.
std::string toUtf8(std::u16string_view text, HalfPairs halves = HalfPairs::Replaced);

/// Nothing when `bytes` is not valid UTF-8 (overlong forms included).
std::optional<std::u16string> fromUtf8(std::string_view bytes, HalfPairs halves = HalfPairs::Replaced);

/// Windows-1252, as classic form files use; the five bytes without a character map to C1 controls.
std::u16string fromWindows1252(std::string_view bytes);

/// Nothing when a character of `text` has no Windows-1252 byte.
std::optional<std::string> toWindows1252(std::u16string_view text);

/// ASCII to UTF-16, for names and numbers made by the library itself.
std::u16string widen(std::string_view ascii);

}  // namespace kel
