#pragma once

#include <string>
#include <vector>

#include "forms/file/FormFile.h"
#include "records/Store.h"
#include "values/RegionalSettings.h"

/// What form a table wants.
namespace kel::records {

struct MadeForm {
    FormFile file;
    std::size_t fields = 0;
    std::vector<std::u16string> leftOut{};  ///< columns that no field shows, beside the version
    bool namesTable = false;                ///< the form's own name leads to the table
};

/// A form with a field for each column: its type chooses the control, where it points to another table that is its
/// list. Dates stand in the order of `region`. `path` is where it is going to be saved. Throws StoreError, also when
/// there is nothing to show.
MadeForm formFor(Store& store, const Table& table, const RegionalSettings& region, const std::string& path);

}  // namespace kel::records
