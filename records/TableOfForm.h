#pragma once

#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "records/Table.h"

/// What table a form wants.
namespace kel::records {

/// Its fields' columns, in the order of the Tab key; key and version are the store's to add. Throws StoreError when two
/// fields are of one column.
Table tableFor(const Form& form, std::u16string_view name, const RegionalSettings& region);

/// Columns that fields of the form want and `table` does not have.
std::vector<Column> missingColumns(const Form& form, const Table& table, const RegionalSettings& region);

}  // namespace kel::records
