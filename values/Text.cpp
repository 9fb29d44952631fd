#include "values/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kel {

namespace {

constexpr char32_t Replacement = 0xFFFD;

/// The characters of the bytes 80 to 9F; everywhere else byte and character are the same number.
constexpr std::array<char16_t, 32> Windows1252Upper = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                       0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The code point at `position`, which is moved after it; half a pair by itself is one.
char32_t takeCodePoint(std::u16string_view text, std::size_t& position) {
    const char16_t unit = text[position++];
    if (isHighSurrogate(unit) && position < text.size() && isLowSurrogate(text[position])) {
        return 0x10000U + ((unit & 0x3FFU) << 10) + (text[position++] & 0x3FFU);
    }
    return unit;
}

void appendUtf8(std::string& bytes, char32_t point) {
    const auto append = [&bytes](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    const auto appendTrail = [&append, point](int shift) { append(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80) {
        append(point);
    } else if (point < 0x800) {
        append(0xC0U | (point >> 6));
        appendTrail(0);
    } else if (point < 0x10000) {
        append(0xE0U | (point >> 12));
        appendTrail(6);
        appendTrail(0);
    } else {
        append(0xF0U | (point >> 18));
        appendTrail(12);
        appendTrail(6);
        appendTrail(0);
    }
}

struct Utf8Lead {
    int trails = -1;  ///< bytes that follow; -1: no lead byte
    char32_t bits = 0;
    char32_t least = 0;  ///< a smaller code point has a shorter form
};

constexpr Utf8Lead utf8Lead(unsigned char byte) {
    if (byte < 0x80) return {0, byte, 0};
    if ((byte & 0xE0) == 0xC0) return {1, byte & 0x1FU, 0x80};
    if ((byte & 0xF0) == 0xE0) return {2, byte & 0x0FU, 0x800};
    if ((byte & 0xF8) == 0xF0) return {3, byte & 0x07U, 0x10000};
    return {};
}

/// The code point at `position`, which is moved after it; nothing when the bytes are no valid form.
std::optional<char32_t> takeUtf8(std::string_view bytes, std::size_t& position) {
    const Utf8Lead lead = utf8Lead(static_cast<unsigned char>(bytes[position++]));
    if (lead.trails < 0 || bytes.size() - position < static_cast<std::size_t>(lead.trails)) return std::nullopt;
    char32_t point = lead.bits;
    for (int trail = 0; trail < lead.trails; ++trail) {
        const auto byte = static_cast<unsigned char>(bytes[position++]);
        if ((byte & 0xC0) != 0x80) return std::nullopt;
        point = (point << 6) | (byte & 0x3FU);
    }
    if (point < lead.least || point > 0x10FFFF) return std::nullopt;
    return point;
}

std::optional<char> windows1252Byte(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return static_cast<char>(unit);
    const auto found = std::find(Windows1252Upper.begin(), Windows1252Upper.end(), unit);
    if (found == Windows1252Upper.end()) return std::nullopt;
    return static_cast<char>(0x80 + (found - Windows1252Upper.begin()));
}

}  // namespace

void appendCodePoint(std::u16string& text, char32_t code) {
    if (code < 0x10000) {
        text.push_back(static_cast<char16_t>(code));
    } else {
        text.push_back(static_cast<char16_t>(0xD7C0U + (code >> 10)));
        text.push_back(static_cast<char16_t>(0xDC00U + (code & 0x3FFU)));
    }
}

bool hasHalfPair(std::u16string_view text) {
    for (std::size_t position = 0; position < text.size();)
        if (isHalfPair(takeCodePoint(text, position))) return true;
    return false;
}

std::string toUtf8(std::u16string_view text, HalfPairs halves) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t point = takeCodePoint(text, position);
        appendUtf8(bytes, isHalfPair(point) && halves == HalfPairs::Replaced ? Replacement : point);
    }
    return bytes;
}

std::optional<std::u16string> fromUtf8(std::string_view bytes, HalfPairs halves) {
    std::u16string text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();) {
        const std::optional<char32_t> point = takeUtf8(bytes, position);
        if (!point || (isHalfPair(*point) && halves == HalfPairs::Replaced)) return std::nullopt;
        appendCodePoint(text, *point);
    }
    return text;
}

std::u16string fromWindows1252(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        text.push_back(byte >= 0x80 && byte < 0xA0 ? Windows1252Upper[byte - 0x80U] : char16_t{byte});
    }
    return text;
}

std::optional<std::string> toWindows1252(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        const std::optional<char> byte = windows1252Byte(unit);
        if (!byte) return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

std::u16string widen(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

}  // namespace kel
