#include "records/Store.h"

namespace kel::records {

bool isLeftToDatabase(const Column& column, const Cell& value) {
    return column.generated || (column.hasDefault && isNull(value));
}

Cells keyOf(const Table& table, const Record& record) {
    Cells key;
    key.reserve(table.key.size());
    for (const std::size_t column : table.key) key.push_back(record.cells[column]);
    return key;
}

}  // namespace kel::records
