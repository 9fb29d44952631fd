#include "records/OpenTable.h"

#include "records/TableOfForm.h"
#include "values/Text.h"

namespace kel::records {

namespace {

/// The one that is spelt otherwise, such as OrderLine; nothing where there are several.
std::optional<Table> tableSpeltLike(Store& store, std::u16string_view name) {
    std::vector<std::u16string> names = store.tables();
    std::erase_if(names, [&](const std::u16string& each) { return !isSameName(each, name); });
    return names.size() == 1 ? store.table(names.front()) : std::nullopt;
}

}  // namespace

std::optional<Table> tableOfForm(Store& store, std::u16string_view formName) {
    const std::u16string wanted = databaseName(formName);
    const std::optional<Table> table = store.table(wanted);
    return table ? table : tableSpeltLike(store, wanted);
}

Table openTable(Store& store, const Form& form, std::u16string_view name, const RegionalSettings& region,
                const std::function<bool(const std::vector<Column>&)>& mayAdd) {
    const std::u16string& formName = form.file().block(0).name;
    std::optional<Table> table = name.empty() ? tableOfForm(store, formName) : store.table(name);
    if (!table)
        return store.makeTable(tableFor(form, name.empty() ? databaseName(formName) : std::u16string(name), region));
    const std::vector<Column> missing = missingColumns(form, *table, region);
    if (missing.empty()) return *table;
    if (!mayAdd || !mayAdd(missing))
        throw StoreError(StoreError::Kind::Wrong, "The table " + toUtf8(table->name) + " has no column " +
                                                      toUtf8(missing.front().name) +
                                                      (mayAdd ? "." : ". The window of the form offers to add it."));
    for (const Column& column : missing) store.addColumn(*table, column);
    return store.table(table->name).value();
}

}  // namespace kel::records
