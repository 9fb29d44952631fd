#include "forms/ScriptValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "values/Calendar.h"
#include "values/Coercion.h"
#include "values/Text.h"

namespace kel {

namespace {

void skipBlanks(std::u16string_view& rest) {
    const std::size_t start = rest.find_first_not_of(ScriptBlanks);
    rest.remove_prefix(start == std::u16string_view::npos ? rest.size() : start);
}

std::optional<std::int32_t> readDigits(std::u16string_view text, std::size_t least, std::size_t most) {
    if (text.size() < least || text.size() > most) return std::nullopt;
    std::int32_t number = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9') return std::nullopt;
        number = number * 10 + (unit - u'0');
    }
    return number;
}

/// Three numbers with `separator` between them, as dates and times have.
std::optional<std::array<std::int32_t, 3>> readTriple(std::u16string_view text, char16_t separator) {
    std::array<std::int32_t, 3> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool last = i + 1 == numbers.size();
        const std::size_t end = last ? text.size() : text.find(separator);
        if (end == std::u16string_view::npos) return std::nullopt;
        const auto number = readDigits(text.substr(0, end), 1, 4);
        if (!number) return std::nullopt;
        numbers[i] = *number;
        text.remove_prefix(last ? end : end + 1);
    }
    return numbers;
}

/// The {HEX} after \u.
bool takeHexEscape(std::u16string_view& rest, std::u16string& text) {
    const std::size_t end = rest.find(u'}');
    if (rest.empty() || rest.front() != u'{' || end == std::u16string_view::npos) return false;
    const std::string digits = toUtf8(rest.substr(1, end - 1));
    std::uint32_t code = 0;
    const auto [stop, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    if (fault != std::errc() || stop != digits.data() + digits.size() || code > 0x10FFFF) return false;
    appendCodePoint(text, code);
    rest.remove_prefix(end + 1);
    return true;
}

bool takeEscape(std::u16string_view& rest, std::u16string& text) {
    if (rest.empty()) return false;
    const char16_t mark = rest.front();
    rest.remove_prefix(1);
    switch (mark) {
        case u'"':
        case u'\\': text += mark; return true;
        case u'r': text += u'\r'; return true;
        case u'n': text += u'\n'; return true;
        case u't': text += u'\t'; return true;
        case u'u': return takeHexEscape(rest, text);
        default: return false;
    }
}

std::optional<Variant> takeText(std::u16string_view& rest, std::string& error) {
    rest.remove_prefix(1);
    std::u16string text;
    while (!rest.empty()) {
        const char16_t unit = rest.front();
        rest.remove_prefix(1);
        if (unit == u'"') return text;
        if (unit != u'\\') {
            text += unit;
        } else if (!takeEscape(rest, text)) {
            error = R"(only \", \\, \r, \n, \t and \u{HEX} can follow a backslash)";
            return std::nullopt;
        }
    }
    error = "the text has no closing quote";
    return std::nullopt;
}

std::optional<Variant> takeDate(std::u16string_view& rest, std::string& error) {
    const std::size_t end = rest.find(u'#', 1);
    if (end != std::u16string_view::npos) {
        const std::u16string_view inside = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
        if (const auto date = readScriptDate(inside)) return *date;
        if (const auto time = readScriptTime(inside)) return *time;
        const std::size_t blank = inside.find(u' ');
        if (blank != std::u16string_view::npos) {
            const auto date = readScriptDate(inside.substr(0, blank));
            const auto time = readScriptTime(inside.substr(blank + 1));
            if (date && time) return withTime(*date, dayFractionOf(*time));
        }
    }
    error = "a date is written #2013-03-15#, #10:15:30# or #2013-03-15 10:15:30#";
    return std::nullopt;
}

std::optional<Variant> takeArray(std::u16string_view& rest, std::string& error) {
    rest.remove_prefix(1);
    StringArray items;
    for (skipBlanks(rest); !rest.empty(); skipBlanks(rest)) {
        if (rest.front() == u']') {
            rest.remove_prefix(1);
            return items;
        }
        auto item = rest.front() == u'"' ? takeText(rest, error) : std::nullopt;
        if (!item) break;
        items.push_back(std::get<std::u16string>(std::move(*item)));
        skipBlanks(rest);
        if (rest.starts_with(u',')) {
            rest.remove_prefix(1);
        } else if (!rest.starts_with(u']')) {
            break;
        }
    }
    if (error.empty()) error = R"(an array is written ["one", "two"])";
    return std::nullopt;
}

std::optional<Variant> readNumber(std::u16string_view word) {
    const bool whole = word.find_first_of(u".eE") == std::u16string_view::npos;
    double number = 0;
    if (!readPlainNumber(word, defaultRegion(), number)) return std::nullopt;
    if (whole && number >= INT32_MIN && number <= INT32_MAX) return static_cast<std::int32_t>(number);
    return number;
}

std::optional<Variant> takeWord(std::u16string_view& rest, std::string& error) {
    const std::u16string_view word = rest.substr(0, rest.find_first_of(u" \t,]"));
    rest.remove_prefix(word.size());
    if (word == u"True") return true;
    if (word == u"False") return false;
    if (word == u"Empty") return Empty{};
    if (word == u"Null") return Null{};
    if (auto number = readNumber(word)) return number;
    error = "\"" + toUtf8(word) + "\" is no value; a text stands in quotes";
    return std::nullopt;
}

std::u16string writeHexEscape(char16_t unit) {
    std::array<char, 16> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "\\u{%X}", static_cast<unsigned>(unit));
    return widen({buffer.data(), static_cast<std::size_t>(length)});
}

bool mustEscape(std::u16string_view text, std::size_t index, bool caretMarks) {
    const char16_t unit = text[index];
    if (unit < u' ' || unit == 0x7F) return true;
    if (caretMarks && (unit == u'|' || unit == u'[' || unit == u']')) return true;
    const bool paired = splitsPair(text, index) || splitsPair(text, index + 1);
    return (isHighSurrogate(unit) || isLowSurrogate(unit)) && !paired;
}

std::u16string escaped(std::u16string_view text, bool caretMarks) {
    std::u16string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
            case u'"':
            case u'\\':
                result += u'\\';
                result += text[i];
                break;
            case u'\r': result += u"\\r"; break;
            case u'\n': result += u"\\n"; break;
            case u'\t': result += u"\\t"; break;
            default:
                if (mustEscape(text, i, caretMarks))
                    result += writeHexEscape(text[i]);
                else
                    result += text[i];
        }
    }
    return result;
}

template <std::size_t Size, class... Numbers>
std::u16string formatted(const char (&format)[Size], Numbers... numbers) {
    std::array<char, 64> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, numbers...);
    return widen({buffer.data(), static_cast<std::size_t>(length)});
}

std::u16string writeDate(Date date, bool asTime) {
    const TimeParts time = timePartsOf(date);
    const std::u16string clock = formatted("%02d:%02d:%02d", time.hour, time.minute, time.second);
    if (asTime) return u"#" + clock + u"#";
    const DateParts day = datePartsOf(date);
    const std::u16string calendar = formatted("%04d-%02d-%02d", day.year, day.month, day.day);
    return u"#" + (time == TimeParts{} ? calendar : calendar + u" " + clock) + u"#";
}

struct Writer {
    bool dateAsTime;
    std::u16string operator()(Empty) const { return u"Empty"; }
    std::u16string operator()(Null) const { return u"Null"; }
    std::u16string operator()(Missing) const { return u""; }
    std::u16string operator()(bool value) const { return value ? u"True" : u"False"; }
    std::u16string operator()(std::int16_t value) const { return widen(std::to_string(value)); }
    std::u16string operator()(std::int32_t value) const { return widen(std::to_string(value)); }
    std::u16string operator()(double value) const { return shortestNumber(value); }
    std::u16string operator()(Date value) const { return writeDate(value, dateAsTime); }
    std::u16string operator()(const std::u16string& value) const { return quoteScriptText(value); }
    std::u16string operator()(const StringArray&) const { return u""; }
    std::u16string operator()(const ObjectPtr&) const { return u""; }
};

}  // namespace

std::optional<Date> readScriptDate(std::u16string_view text) {
    const auto numbers = readTriple(text, u'-');
    if (!numbers) return std::nullopt;
    return dateOf({(*numbers)[0], (*numbers)[1], (*numbers)[2]});
}

std::optional<Date> readScriptTime(std::u16string_view text) {
    const auto numbers = readTriple(text, u':');
    if (!numbers) return std::nullopt;
    return timeOf({(*numbers)[0], (*numbers)[1], (*numbers)[2]});
}

std::optional<Variant> takeScriptValue(std::u16string_view& rest, std::string& error) {
    error.clear();
    skipBlanks(rest);
    if (rest.empty()) {
        error = "a value is missing";
        return std::nullopt;
    }
    switch (rest.front()) {
        case u'"': return takeText(rest, error);
        case u'#': return takeDate(rest, error);
        case u'[': return takeArray(rest, error);
        default: return takeWord(rest, error);
    }
}

std::u16string quoteScriptText(std::u16string_view text) { return u"\"" + escaped(text, false) + u"\""; }

std::u16string drawScriptText(std::u16string_view text, std::size_t selStart, std::size_t selLength) {
    const std::size_t start = std::min(selStart, text.size());
    const std::size_t length = std::min(selLength, text.size() - start);
    std::u16string drawn = u"\"" + escaped(text.substr(0, start), true);
    if (length == 0)
        drawn += u'|';
    else
        drawn += u'[' + escaped(text.substr(start, length), true) + u']';
    return drawn + escaped(text.substr(start + length), true) + u'"';
}

std::u16string writeScriptValue(const Variant& value, bool dateAsTime) { return std::visit(Writer{dateAsTime}, value); }

}  // namespace kel
