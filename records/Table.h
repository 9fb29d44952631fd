#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kel::records {

enum class ColumnType : std::uint8_t {
    Text,
    Integer,
    Real,     ///< double precision
    Decimal,  ///< exact, with `decimals` after the point
    Date,
    Time,
    Moment,  ///< a day with a time of day
    Truth,   ///< yes or no; 1 and 0 where the database has no such type
    Other    ///< bytes, and whatever else no field shows
};

/// "text", "a date": for messages.
std::u16string_view nameOf(ColumnType type);

/// The column of another table that a column alone points to.
struct Reference {
    std::u16string table;
    std::u16string column;  ///< empty: the table's key
};

struct Column {
    std::u16string name;
    ColumnType type = ColumnType::Text;
    std::int32_t length = 0;    ///< most characters of a text, digits of a Decimal; 0: any number
    std::int32_t decimals = 0;  ///< of a Decimal
    std::int64_t most = 0;      ///< largest value of an Integer; 0: 64 bits
    bool notNull = false;       ///< a record without a value is refused
    bool generated = false;     ///< the database gives the value of a new record, or always
    bool hasDefault = false;    ///< a new record may leave it out
    bool unique = false;        ///< no two records have the same value
    std::optional<Reference> reference{};
    /// What a new record gets that leaves it out, where that is a plain value: "open", "1", "2013-03-15", or "Now" for
    /// a day.
    std::u16string initial{};
};

/// A table of records as the database has it, or as it is to be made.
struct Table {
    std::u16string name;
    std::vector<Column> columns;
    std::vector<std::size_t> key;          ///< the columns that tell a record from all others, in order
    std::optional<std::size_t> version{};  ///< counts the changes of a record, in a table that was made from a form

    /// The column that `spelling` means: by its name, else by its name without regard to case, blanks, "_" and "-".
    /// Nothing where none or more than one is meant.
    std::optional<std::size_t> find(std::u16string_view spelling) const;

    bool isKey(std::size_t column) const;
};

/// Whether both mean the same column: "order_date", "Order Date" and "OrderDate" do.
bool isSameName(std::u16string_view left, std::u16string_view right);

/// "txtOrderDate" is order_date, without the three small letters that tell a control's kind, if it has them: a name
/// that needs no quotes in any database.
std::u16string databaseName(std::u16string_view controlName);

}  // namespace kel::records
