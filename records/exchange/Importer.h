#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/Binding.h"
#include "records/exchange/ListFormat.h"

namespace kel::records {

class CsvReader;

/// Takes the records of a list into a table. Each value goes through its field, which reads it as if it was typed and
/// says whether it is valid; a record of which the fields or the database do not take something is left out.
class Importer {
public:
    /// `unseen` is a home that shows nothing; the form is opened there once more. `others` has the tables that give
    /// lists to fields. All outlives it. Throws StoreError, FormError.
    Importer(Home& unseen, const FormFile& form, RecordStore& records, Store* others = nullptr);
    ~Importer();

    struct Result {
        std::int64_t stored = 0;
        std::int64_t rejected = 0;
        bool isStopped = false;
        std::string failure;                  ///< what the database said when it ended before the list; else empty
        std::vector<std::string> passedOver;  ///< headings that mean no field
    };
    /// Takes a line for the list of rejects, with its end: the number of the line, the reason, and the values, under
    /// the same headings.
    using Reject = std::function<void(std::string_view line)>;
    /// Asked now and then, with the bytes that are done.
    using GoesOn = std::function<bool(std::int64_t bytes)>;

    /// With `allOrNothing` nothing is stored when a record is rejected or it was stopped; else what was good so far.
    /// Throws StoreError when the list has no heading that means a field, or a field without a column cannot stay as it
    /// is; std::runtime_error when the list cannot be read on.
    Result run(std::istream& list, const ListFormat& format, bool allOrNothing, const Reject& reject,
               const GoesOn& goesOn);

private:
    /// A field of the list, or one that has no column there and stays as a new record has it.
    struct Field;
    class Listening;

    std::vector<std::string> columnNames(std::size_t count) const;
    void findColumns(const CsvReader& header, Result& result);
    void takeFieldsInOrder(std::size_t columns);
    void settleFields();
    bool take(const CsvReader& line, std::string& reason);
    const Cell* read(Field& field, std::string_view value, std::string& reason);
    Cell readAnew(Field& field, std::string_view value, std::string& reason);
    std::string whyNotValid(Field& field);
    /// Empty when no time of day among the values lacks its day.
    std::string whyNoMoment() const;
    const Column& columnOf(const Field& field) const;
    void store(std::string& reason);
    std::string takeRecord(const CsvReader& line, std::size_t columns);

    std::unique_ptr<Listening> System_;
    SilentObserver Observer_;
    const RegionalSettings& Region_;
    const RegionalSettings* Numbers_;
    Form Form_;
    RecordStore& Records_;
    std::vector<Field> Fields_;
    std::vector<Change> Values_;  ///< of the record that is being taken
};

}  // namespace kel::records
