#include "forms/file/FormText.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "forms/file/FormError.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr char CommentMark = '\'';

constexpr char toLower(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte; }

std::string_view withoutLeadingBlanks(std::string_view text) {
    const std::size_t start = text.find_first_not_of(Blanks);
    return start == std::string_view::npos ? text.substr(text.size()) : text.substr(start);
}

std::string_view withoutTrailingBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

/// Takes everything up to one of `ends` off the front.
std::string_view takeUntil(std::string_view& rest, std::string_view ends) {
    const std::string_view taken = rest.substr(0, rest.find_first_of(ends));
    rest.remove_prefix(taken.size());
    return taken;
}

/// The next word before the end of the line or its comment; empty when there is none.
std::string_view takeWord(std::string_view& rest) {
    rest = withoutLeadingBlanks(rest);
    return rest.starts_with(CommentMark) ? std::string_view() : takeUntil(rest, Blanks);
}

void expectEnd(std::string_view rest, std::string_view before) {
    const std::string_view word = takeWord(rest);
    if (!word.empty()) throw FormFault{excerptOf(word) + " stands after " + std::string(before)};
}

FormLine scanBegin(std::string_view rest) {
    FormLine line{FormLine::Kind::Begin, takeWord(rest), {}};
    line.detail = takeWord(rest);
    if (line.name.empty()) throw FormFault{"Begin without a class and a name"};
    if (line.detail.empty()) throw FormFault{"Begin " + excerptOf(line.name) + " without a name"};
    expectEnd(rest, "the name of the block");
    return line;
}

FormLine scanBeginGroup(std::string_view rest) {
    FormLine line{FormLine::Kind::BeginGroup, takeWord(rest), {}};
    line.detail = takeWord(rest);
    if (line.name.empty()) throw FormFault{"BeginProperty without a name"};
    expectEnd(rest, "BeginProperty");
    return line;
}

FormLine scanVersion(std::string_view rest) {
    const FormLine line{FormLine::Kind::Version, {}, takeWord(rest)};
    expectEnd(rest, "the version");
    return line;
}

FormLine scanClosing(FormLine::Kind kind, std::string_view keyword, std::string_view rest) {
    expectEnd(rest, keyword);
    return {kind, {}, {}};
}

FormLine scanKeyword(std::string_view word, std::string_view rest) {
    if (equalsIgnoringAsciiCase(word, "Begin")) return scanBegin(rest);
    if (equalsIgnoringAsciiCase(word, "BeginProperty")) return scanBeginGroup(rest);
    if (equalsIgnoringAsciiCase(word, "VERSION")) return scanVersion(rest);
    if (equalsIgnoringAsciiCase(word, "End")) return scanClosing(FormLine::Kind::End, "End", rest);
    if (equalsIgnoringAsciiCase(word, "EndProperty")) return scanClosing(FormLine::Kind::EndGroup, "EndProperty", rest);
    throw FormFault{excerptOf(word) + " begins neither a property nor a block"};
}

QuotedBytes takeQuoted(std::string_view& rest) {
    for (std::size_t close = rest.find('"', 1); close != std::string_view::npos; close = rest.find('"', close + 2)) {
        if (rest.substr(close + 1).starts_with('"')) continue;
        const QuotedBytes quoted{rest.substr(1, close - 1)};
        rest.remove_prefix(close + 1);
        return quoted;
    }
    throw FormFault{"the text has no closing quote"};
}

std::uint32_t takeOffset(std::string_view& rest) {
    const std::string_view digits = takeUntil(rest, " \t'");
    std::uint32_t offset = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), offset, 16);
    if (fault != std::errc() || end != digits.data() + digits.size())
        throw FormFault{excerptOf(digits) + " is no hexadecimal offset into a file"};
    return offset;
}

ScannedValue scanQuotedValue(std::string_view rest) {
    const bool isText = rest.starts_with('$');
    if (isText) rest.remove_prefix(1);
    const QuotedBytes quoted = takeQuoted(rest);
    if (!rest.starts_with(':')) {
        if (isText) throw FormFault{"an offset into the file must follow the name after $"};
        expectEnd(rest, "the text");
        return quoted;
    }
    rest.remove_prefix(1);
    const ReferenceBytes reference{quoted, takeOffset(rest), isText};
    expectEnd(rest, "the offset");
    return reference;
}

/// `&HFF&` counts 32 bits. Without the last mark up to four digits count 16 bits: `&HFFFF` is -1.
std::optional<std::int32_t> readHex(std::string_view word) {
    if (word.size() < 3 || word[0] != '&' || toLower(word[1]) != 'h') return std::nullopt;
    word.remove_prefix(2);
    const bool isLong = word.ends_with('&');
    if (isLong) word.remove_suffix(1);
    std::uint32_t bits = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), bits, 16);
    if (fault != std::errc() || end != word.data() + word.size()) return std::nullopt;
    if (!isLong && word.size() <= 4) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

std::optional<ScannedValue> readDecimal(std::string_view word) {
    if (word.starts_with("+-")) return std::nullopt;
    if (word.starts_with('+')) word.remove_prefix(1);
    if (word.find_first_not_of("0123456789.eE+-") != std::string_view::npos) return std::nullopt;
    double number = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (fault != std::errc() || end != word.data() + word.size()) return std::nullopt;
    const bool isWhole = word.find_first_of(".eE") == std::string_view::npos;
    if (isWhole && number >= INT32_MIN && number <= INT32_MAX) return static_cast<std::int32_t>(number);
    return number;
}

std::optional<ScannedValue> readNumber(std::string_view word) {
    if (const auto hex = readHex(word)) return *hex;
    return readDecimal(word);
}

}  // namespace

FormLine scanFormLine(std::string_view line) {
    std::string_view rest = withoutLeadingBlanks(line);
    if (rest.empty() || rest.front() == CommentMark) return {};
    const std::string_view word = takeUntil(rest, " \t=");
    const std::string_view after = withoutLeadingBlanks(rest);
    if (!after.starts_with('=')) return scanKeyword(word, after);
    if (word.empty()) throw FormFault{"a property needs a name before the ="};
    return {FormLine::Kind::Property, word, withoutLeadingBlanks(after.substr(1))};
}

bool isVersionLine(std::string_view line) {
    return equalsIgnoringAsciiCase(takeWord(line), "VERSION") && !withoutLeadingBlanks(line).starts_with('=');
}

ScannedValue scanFormValue(std::string_view detail) {
    if (detail.starts_with('"') || detail.starts_with("$\"")) return scanQuotedValue(detail);
    std::string_view rest = detail;
    const std::string_view word = takeUntil(rest, " \t'");
    const std::optional<ScannedValue> number = readNumber(word);
    if (!number) return RawBytes{withoutTrailingBlanks(detail)};
    expectEnd(rest, "the number");
    return *number;
}

std::pair<QuotedBytes, QuotedBytes> scanObjectValue(std::string_view detail) {
    if (!detail.starts_with('"')) throw FormFault{"Object needs a library in quotes"};
    const QuotedBytes library = takeQuoted(detail);
    QuotedBytes file;
    detail = withoutLeadingBlanks(detail);
    if (detail.starts_with(';')) {
        detail = withoutLeadingBlanks(detail.substr(1));
        if (!detail.starts_with('"')) throw FormFault{"a file in quotes must follow the ;"};
        file = takeQuoted(detail);
    }
    expectEnd(detail, "the library");
    return {library, file};
}

std::string withoutDoubledQuotes(QuotedBytes quoted) {
    std::string text;
    text.reserve(quoted.inner.size());
    for (std::size_t i = 0; i < quoted.inner.size(); ++i) {
        text += quoted.inner[i];
        if (quoted.inner[i] == '"') ++i;
    }
    return text;
}

bool equalsIgnoringAsciiCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return toLower(a) == toLower(b); });
}

bool NameOrder::operator()(std::string_view left, std::string_view right) const {
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return static_cast<unsigned char>(toLower(a)) < static_cast<unsigned char>(toLower(b));
    });
}

bool NameOrder::operator()(std::u16string_view left, std::u16string_view right) const {
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](char16_t a, char16_t b) { return toLowerAscii(a) < toLowerAscii(b); });
}

std::string excerptOf(std::string_view bytes) {
    constexpr std::size_t Longest = 40;
    std::string shown = "\"";
    for (const char byte : bytes.substr(0, Longest)) shown += byte >= ' ' && byte < 0x7F ? byte : '?';
    return shown + (bytes.size() > Longest ? "...\"" : "\"");
}

}  // namespace kel
