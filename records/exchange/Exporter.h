#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "records/Binding.h"
#include "records/exchange/ListFormat.h"

namespace kel::records {

/// Writes the records of a form to a list, a record a line, a column for each that the form shows: what stands in the
/// database, days and times as 2013-03-15 and 10:15:30, check fields as 1 and 0, and the tag of a combo that keeps it.
class Exporter {
public:
    /// All of it outlives the exporter; `region` writes the numbers of a list that is not separated by commas.
    Exporter(const std::vector<Binding>& fields, RecordStore& records, const Order& order,
             const RegionalSettings& region);

    /// Takes some lines, each with its end.
    using Write = std::function<void(std::string_view lines)>;
    /// Asked now and then, with the records that are written so far.
    using GoesOn = std::function<bool(std::int64_t records)>;

    /// The number of records; the list ends after a whole one when it was stopped. Throws StoreError.
    std::int64_t run(const ListFormat& format, const Write& write, const GoesOn& goesOn);

private:
    void appendLine(std::string& lines, const std::vector<std::string>& values, char separator);
    std::string valueOf(const Record& record, std::size_t column, const RegionalSettings& numbers) const;

    RecordStore& Records_;
    Order Order_;
    const RegionalSettings& Region_;
    std::vector<std::size_t> Columns_;
};

}  // namespace kel::records
