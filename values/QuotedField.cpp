#include "values/QuotedField.h"

namespace kel {

namespace {
constexpr char16_t Quote = u'"';
}

std::size_t fieldEnd(std::u16string_view text, std::size_t start, char16_t separator) {
    bool quoted = false;
    for (std::size_t i = start; i < text.size(); ++i) {
        if (text[i] == Quote) quoted = !quoted;
        if (text[i] == separator && !quoted) return i;
    }
    return text.size();
}

std::u16string unquoted(std::u16string_view field) {
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

}  // namespace kel
