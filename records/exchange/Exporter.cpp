#include "records/exchange/Exporter.h"

#include <algorithm>

#include "records/exchange/Csv.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::int32_t ExportedAtOnce = 500;

bool isNumber(ColumnType type) { return type == ColumnType::Real || type == ColumnType::Decimal; }

}  // namespace

Exporter::Exporter(const std::vector<Binding>& fields, RecordStore& records, const Order& order,
                   const RegionalSettings& region)
    : Records_(records), Order_(order), Region_(region) {
    for (const Binding& field : fields)
        if (std::find(Columns_.begin(), Columns_.end(), field.column()) == Columns_.end())
            Columns_.push_back(field.column());
}

void Exporter::appendLine(std::string& lines, const std::vector<std::string>& values, char separator) {
    // A line with nothing on it would be none.
    if (values.size() == 1 && values.front().empty()) lines += "\"\"";
    for (const std::string& value : values) appendCsv(lines, value, separator, &value == &values.front());
    lines += CsvLineEnd;
}

std::string Exporter::valueOf(const Record& record, std::size_t column, const RegionalSettings& numbers) const {
    std::u16string text = textOf(record.cells[column]);
    if (isNumber(Records_.table().columns[column].type))
        if (const std::size_t point = text.find(u'.'); point != text.npos)
            text.replace(point, 1, numbers.DecimalSeparator);
    return toUtf8(text);
}

std::int64_t Exporter::run(const ListFormat& format, const Write& write, const GoesOn& goesOn) {
    const char separator = format.separator == 0 ? ',' : format.separator;
    const RegionalSettings& numbers = numbersIn(separator, Region_);
    std::string lines;
    std::vector<std::string> values(Columns_.size());
    const auto take = [&](auto valueIn) {
        std::transform(Columns_.begin(), Columns_.end(), values.begin(), valueIn);
        appendLine(lines, values, separator);
    };
    if (format.hasHeader) take([&](std::size_t column) { return toUtf8(Records_.table().columns[column].name); });
    std::optional<Record> last;
    for (std::int64_t count = 0;;) {
        std::vector<Record> some = Records_.walk(last ? &*last : nullptr, Way::Forward, ExportedAtOnce, Order_);
        for (const Record& record : some) take([&](std::size_t column) { return valueOf(record, column, numbers); });
        count += static_cast<std::int64_t>(some.size());
        write(lines);
        lines.clear();
        if (some.size() < static_cast<std::size_t>(ExportedAtOnce) || !goesOn(count)) return count;
        last = std::move(some.back());
    }
}

}  // namespace kel::records
