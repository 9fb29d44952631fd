#include "records/Table.h"

#include <algorithm>

#include "values/CaseFolding.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::size_t PrefixLength = 3;

/// The parts of a name that count: blanks, "_" and "-" only say where words meet.
std::u16string letters(std::u16string_view name) {
    std::u16string kept;
    std::copy_if(name.begin(), name.end(), std::back_inserter(kept),
                 [](char16_t unit) { return unit != u' ' && unit != u'_' && unit != u'-'; });
    return kept;
}

/// A name without the letters that tell a control's kind stays.
std::u16string_view withoutPrefix(std::u16string_view controlName) {
    const bool prefixed = controlName.size() > PrefixLength &&
                          std::all_of(controlName.begin(), controlName.begin() + PrefixLength, &isLowerAscii) &&
                          (isUpperAscii(controlName[PrefixLength]) || controlName[PrefixLength] == u'_');
    return prefixed ? controlName.substr(PrefixLength) : controlName;
}

/// The only one that `fits`.
template <class Fits>
std::optional<std::size_t> theOne(const std::vector<Column>& columns, Fits fits) {
    const auto found = std::find_if(columns.begin(), columns.end(), fits);
    if (found == columns.end() || std::find_if(found + 1, columns.end(), fits) != columns.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

std::u16string_view nameOf(ColumnType type) {
    switch (type) {
        case ColumnType::Text: return u"text";
        case ColumnType::Integer: return u"a whole number";
        case ColumnType::Real: return u"a number";
        case ColumnType::Decimal: return u"a decimal number";
        case ColumnType::Date: return u"a date";
        case ColumnType::Time: return u"a time";
        case ColumnType::Moment: return u"a date with a time";
        case ColumnType::Truth: return u"yes or no";
        case ColumnType::Other: break;
    }
    return u"something that no field shows";
}

bool isSameName(std::u16string_view left, std::u16string_view right) {
    return compareFolded(letters(left), letters(right)) == 0;
}

std::u16string databaseName(std::u16string_view controlName) {
    std::u16string name;
    char16_t before = 0;
    for (const char16_t unit : withoutPrefix(controlName)) {
        const bool follows = isLowerAscii(before) || (before >= u'0' && before <= u'9');
        if (isUpperAscii(unit) && follows) name += u'_';
        name += unit == u' ' || unit == u'-' ? u'_' : toLowerAscii(unit);
        before = unit;
    }
    return name;
}

std::optional<std::size_t> Table::find(std::u16string_view spelling) const {
    if (const auto exact = theOne(columns, [&](const Column& column) { return column.name == spelling; })) return exact;
    return theOne(columns, [&](const Column& column) { return isSameName(column.name, spelling); });
}

bool Table::isKey(std::size_t column) const { return std::find(key.begin(), key.end(), column) != key.end(); }

}  // namespace kel::records
