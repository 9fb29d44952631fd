#include "records/OpenTable.h"

#include "records/TableOfForm.h"
#include "values/Text.h"

namespace kel::records {

namespace {

/// "frmOrderLine" is order_line.
std::u16string tableNameOf(const Form& form) { return databaseName(form.file().block(0).name); }

/// The one that is spelt otherwise, such as OrderLine; nothing where there are several.
std::optional<Table> tableSpeltLike(Store& store, std::u16string_view name) {
    std::vector<std::u16string> names = store.tables();
    std::erase_if(names, [&](const std::u16string& each) { return !isSameName(each, name); });
    return names.size() == 1 ? store.table(names.front()) : std::nullopt;
}

}  // namespace

Table openTable(Store& store, const Form& form, std::u16string_view name, const RegionalSettings& region,
                const std::function<bool(const std::vector<Column>&)>& mayAdd) {
    const std::u16string wanted = name.empty() ? tableNameOf(form) : std::u16string(name);
    std::optional<Table> table = store.table(wanted);
    if (!table && name.empty()) table = tableSpeltLike(store, wanted);
    if (!table) return store.makeTable(tableFor(form, wanted, region));
    const std::vector<Column> missing = missingColumns(form, *table, region);
    if (missing.empty()) return *table;
    if (!mayAdd(missing))
        throw StoreError(StoreError::Kind::Wrong,
                         "The table " + toUtf8(table->name) + " has no column " + toUtf8(missing.front().name) + ".");
    for (const Column& column : missing) store.addColumn(*table, column);
    return store.table(table->name).value();
}

}  // namespace kel::records
