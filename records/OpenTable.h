#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "records/Store.h"

namespace kel::records {

/// The table that is there for a form of this name: for frmOrderLine order_line, or OrderLine.
std::optional<Table> tableOfForm(Store& store, std::u16string_view formName);

/// The table of a form's records: by its name, or where that is empty by the form's own. One that is not there is made.
/// One without some column that the form wants is given it, where `mayAdd` is there and agrees. Throws StoreError.
Table openTable(Store& store, const Form& form, std::u16string_view name, const RegionalSettings& region,
                const std::function<bool(const std::vector<Column>&)>& mayAdd);

}  // namespace kel::records
