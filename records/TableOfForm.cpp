#include "records/TableOfForm.h"

#include <algorithm>

#include "records/Binding.h"
#include "values/Text.h"

namespace kel::records {

std::u16string databaseName(std::u16string_view controlName) {
    std::u16string name;
    char16_t before = 0;
    for (const char16_t unit : withoutPrefix(controlName)) {
        const bool isUpper = unit >= u'A' && unit <= u'Z';
        const bool follows = (before >= u'a' && before <= u'z') || (before >= u'0' && before <= u'9');
        if (isUpper && follows) name += u'_';
        name += unit == u' ' || unit == u'-' ? u'_' : toLowerAscii(unit);
        before = unit;
    }
    return name;
}

Table tableFor(const Form& form, std::u16string_view name, const RegionalSettings& region) {
    Table table;
    table.name = name;
    for (const Form::Placed& placed : form.inTabOrder()) {
        if (!isField(placed.control->control())) continue;
        const FieldSource source = sourceOf(form.file().text(placed.block, u"DataField"));
        Column column = Binding(*placed.control, 0, source.byTag, region).ownColumn();
        column.name = source.column.empty() ? databaseName(placed.control->name()) : source.column;
        if (table.find(column.name))
            throw StoreError(StoreError::Kind::Wrong,
                             "Two fields of the form are kept in the column " + toUtf8(column.name) + ".");
        table.columns.push_back(std::move(column));
    }
    return table;
}

std::vector<Column> missingColumns(const Form& form, const Table& table, const RegionalSettings& region) {
    std::vector<Column> columns = tableFor(form, table.name, region).columns;
    std::erase_if(columns, [&](const Column& column) { return table.find(column.name).has_value(); });
    return columns;
}

}  // namespace kel::records
