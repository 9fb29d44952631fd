#include "runtime/ListString.h"

namespace kel {

namespace {

constexpr char16_t Quote = u'"';

bool needsQuotes(std::u16string_view item) {
    if (item.empty()) return false;
    return item.find_first_of(u",\"\r\n") != std::u16string_view::npos || item.front() == u' ' || item.back() == u' ';
}

/// Takes one quote off each end, independently, and halves the doubled ones inside.
std::u16string unquote(std::u16string_view field) {
    if (field.starts_with(Quote)) field.remove_prefix(1);
    if (field.ends_with(Quote)) field.remove_suffix(1);
    std::u16string plain;
    plain.reserve(field.size());
    for (std::size_t i = 0; i < field.size(); ++i) {
        plain += field[i];
        if (field[i] == Quote && i + 1 < field.size() && field[i + 1] == Quote) ++i;
    }
    return plain;
}

std::size_t fieldEnd(std::u16string_view text, std::size_t start, char16_t separator) {
    bool quoted = false;
    for (std::size_t i = start; i < text.size(); ++i) {
        if (text[i] == Quote) quoted = !quoted;
        if (text[i] == separator && !quoted) return i;
    }
    return text.size();
}

}  // namespace

std::u16string appendListItem(std::u16string_view list, std::u16string_view item) {
    std::u16string result(list);
    if (!list.empty()) result += u',';
    if (list.empty() && item.empty()) return u"\"\"";
    if (!needsQuotes(item)) return result.append(item);
    result += Quote;
    for (const char16_t unit : item) {
        if (unit == Quote) result += Quote;
        result += unit;
    }
    return result += Quote;
}

std::u16string readListField(std::u16string_view text, std::int32_t& position, char16_t separator) {
    if (position < 0 || static_cast<std::size_t>(position) > text.size()) {
        position = -1;
        return {};
    }
    const auto start = static_cast<std::size_t>(position);
    const std::size_t end = fieldEnd(text, start, separator);
    // One past the end marks a list that is read to its end: an empty last field, behind a final comma,
    // starts at the end itself and is still to be read.
    position = static_cast<std::int32_t>(end + 1);
    return unquote(text.substr(start, end - start));
}

}  // namespace kel
