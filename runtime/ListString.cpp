#include "runtime/ListString.h"

#include "values/QuotedField.h"

namespace kel {

namespace {

constexpr char16_t Quote = u'"';

bool needsQuotes(std::u16string_view item) { return item.find_first_of(u",\"") != std::u16string_view::npos; }

}  // namespace

void appendListItem(std::u16string& list, std::u16string_view item) {
    const bool first = list.empty();
    if (!first) list += u',';
    if (!needsQuotes(item) && !(first && item.empty())) {
        list.append(item);
        return;
    }
    list += Quote;
    for (const char16_t unit : item) {
        if (unit == Quote) list += Quote;
        list += unit;
    }
    list += Quote;
}

std::u16string readListField(std::u16string_view text, std::int32_t& position, char16_t separator) {
    if (position < 0 || static_cast<std::size_t>(position) > text.size()) {
        position = -1;
        return {};
    }
    const auto start = static_cast<std::size_t>(position);
    const std::size_t end = fieldEnd(text, start, separator);
    // One past the end marks a list that is read to its end: an empty last field, after a final comma,
    // starts at the end itself and is still to be read.
    position = static_cast<std::int32_t>(end + 1);
    return unquoted(text.substr(start, end - start));
}

}  // namespace kel
