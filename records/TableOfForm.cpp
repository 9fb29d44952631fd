#include "records/TableOfForm.h"

#include <algorithm>

#include "records/Binding.h"
#include "records/VersionColumn.h"
#include "values/Text.h"

namespace kel::records {

namespace {

struct Wanted {
    FieldSource source;
    Column column;
};

/// A day and a time in two fields are a moment in one column.
bool areDayAndTime(ColumnType left, ColumnType right) {
    return (left == ColumnType::Date && right == ColumnType::Time) ||
           (left == ColumnType::Time && right == ColumnType::Date);
}

/// In the order of the Tab key.
std::vector<Wanted> wantedBy(const Form& form, const RegionalSettings& region) {
    std::vector<Wanted> wanted;
    for (const Form::Placed& placed : form.inTabOrder()) {
        if (!isField(placed.control->control())) continue;
        FieldSource source = sourceOf(form.file().text(placed.block, u"DataField"), placed.control->name());
        Column column = Binding(placed, 0, source.byTag, region).ownColumn();
        column.name = source.column;
        const auto same = std::find_if(wanted.begin(), wanted.end(), [&](const Wanted& each) {
            return isSameName(each.column.name, column.name) && areDayAndTime(each.column.type, column.type);
        });
        if (same != wanted.end()) {
            same->column.type = ColumnType::Moment;
            continue;
        }
        wanted.push_back({std::move(source), std::move(column)});
    }
    if (wanted.empty()) throw StoreError(StoreError::Kind::Wrong, "The form has no field that keeps a value.");
    return wanted;
}

}  // namespace

Table tableFor(const Form& form, std::u16string_view name, const RegionalSettings& region) {
    Table table;
    table.name = name;
    for (Wanted& wanted : wantedBy(form, region)) {
        if (table.find(wanted.column.name))
            throw StoreError(StoreError::Kind::Wrong,
                             "Two fields of the form are kept in the column " + toUtf8(wanted.column.name) + ".");
        if (isSameName(wanted.column.name, KeyColumn) || isSameName(wanted.column.name, VersionColumn))
            throw StoreError(StoreError::Kind::Wrong,
                             "Every table that is made for a form has a column " + toUtf8(wanted.column.name) +
                                 " of its own. Please write another one into the DataField of the field.");
        table.columns.push_back(std::move(wanted.column));
    }
    return table;
}

std::vector<Column> missingColumns(const Form& form, const Table& table, const RegionalSettings& region) {
    std::vector<Column> missing;
    for (Wanted& wanted : wantedBy(form, region))
        if (!wanted.source.in(table)) missing.push_back(std::move(wanted.column));
    return missing;
}

}  // namespace kel::records
