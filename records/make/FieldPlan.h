#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "records/Store.h"
#include "values/RegionalSettings.h"

namespace kel::records {

/// A field of a form that is being made, before it has its place there.
struct FieldPlan {
    std::u16string className;
    std::u16string name;
    std::u16string caption;       ///< without a mnemonic
    std::u16string dataField;     ///< empty where the name tells the column
    std::int32_t width = 0;       ///< twips, without the caption
    std::int32_t rows = 1;        ///< of one line each
    bool isBesideBefore = false;  ///< in the row of the field before
    std::vector<std::pair<std::u16string, Variant>> properties{};
};

/// Which fields show the columns of a table.
class FieldPlanner {
public:
    /// Looks at some of the table's records: what is kept in a column that may keep anything. Throws StoreError.
    FieldPlanner(Store& store, const Table& table, const RegionalSettings& region);

    /// One field, two for a moment (its day and its time), none for what no field shows.
    std::vector<FieldPlan> fieldsFor(std::size_t column);

private:
    FieldPlan plan(std::size_t column, std::u16string_view className, const std::vector<std::u16string>& words);
    FieldPlan text(std::size_t column);
    FieldPlan number(std::size_t column);
    FieldPlan date(std::size_t column);
    FieldPlan time(std::size_t column);
    FieldPlan check(std::size_t column);
    FieldPlan list(std::size_t column, const Table& others);
    std::u16string freeName(std::u16string_view prefix, const std::vector<std::u16string>& words);
    bool isGiven(std::size_t column) const;
    bool showsDefault(std::size_t column, std::u16string_view className) const;
    bool isLongText(std::size_t column) const;
    std::int32_t decimalsSeen(std::size_t column) const;

    const Column& at(std::size_t column) const { return Table_.columns[column]; }

    Store& Store_;
    const Table& Table_;
    const RegionalSettings& Region_;
    std::vector<Record> Seen_;
    std::set<std::u16string> Names_;  ///< in small letters
};

}  // namespace kel::records
