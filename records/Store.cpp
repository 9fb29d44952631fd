#include "records/Store.h"

#include <algorithm>

#include "values/Text.h"

namespace kel::records {

std::u16string StoreError::words() const { return fromUtf8(what()).value_or(u"The database gives no reason."); }

std::u16string StoreError::wordsAbout(const std::u16string& caption) const {
    const std::u16string& name = caption.empty() ? Column_ : caption;
    return name.empty() ? words() : name + u": " + words();
}

Change* changeOf(std::vector<Change>& values, std::size_t column) {
    const auto found =
        std::find_if(values.begin(), values.end(), [=](const Change& change) { return change.column == column; });
    return found == values.end() ? nullptr : &*found;
}

bool isLeftToDatabase(const Column& column, const Cell& value) {
    const auto* const text = std::get_if<std::u16string>(&value);
    const bool isNothing = isNull(value) || (text != nullptr && text->empty() && column.initial.empty());
    return column.generated || (column.hasDefault && isNothing);
}

Cells keyOf(const Table& table, const Record& record) {
    Cells key;
    key.reserve(table.key.size());
    for (const std::size_t column : table.key) key.push_back(record.cells[column]);
    return key;
}

}  // namespace kel::records
