#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/Cell.h"
#include "records/Table.h"

/// What the records ask of a database. No name and no value that comes through here is ever read as a command of it.
namespace kel::records {

/// What a database refuses, in words that say what to do.
class StoreError : public std::runtime_error {
public:
    enum class Kind : std::uint8_t {
        Constraint,  ///< a rule of the table: the record is not good as it stands
        Busy,        ///< another program holds it, for longer than was waited
        Full,        ///< there is no room left
        ReadOnly,
        Lost,   ///< the connection is gone; asking again makes a new one
        Wrong,  ///< no database, one of a newer version, or anything else
    };
    /// `message` is UTF-8; `column` is the one that it is about, where that is known.
    StoreError(Kind kind, const std::string& message, std::u16string column = {})
        : std::runtime_error(message), Kind_(kind), Column_(std::move(column)) {}

    Kind kind() const { return Kind_; }
    const std::u16string& column() const { return Column_; }
    /// For the person.
    std::u16string words() const;
    /// The same after what the person knows the column by: its field's caption, or its name where `caption` is empty.
    std::u16string wordsAbout(const std::u16string& caption) const;

private:
    Kind Kind_;
    std::u16string Column_;
};

/// A record as it stands in the database.
struct Record {
    Cells cells;  ///< as many as the table has columns

    friend bool operator==(const Record&, const Record&) = default;
};

/// By which column records are put in a row; those that have the same there by their key. Without a column by the key.
/// A record without a value comes before all others.
struct Order {
    std::optional<std::size_t> column{};
    bool descending = false;
    friend bool operator==(const Order&, const Order&) = default;
};

/// A value for a column.
struct Change {
    std::size_t column = 0;
    Cell value;
};

/// The one for this column, which another field may have made; nullptr where there is none yet.
Change* changeOf(std::vector<Change>& values, std::size_t column);

/// Which way to walk from record to record.
enum class Way : std::uint8_t { Forward, Backward };

/// What came of a change to one record.
enum class Outcome : std::uint8_t {
    Done,
    Changed,  ///< somebody else has changed the record since it was read, and it stays as it is now
    Gone      ///< somebody else has deleted it
};

/// By which it is seen that a table has changed. Which numbers these are means nothing.
struct Version {
    std::int64_t others = 0;  ///< is another one after another program has changed something
    std::int64_t own = 0;     ///< counts what this one has stored, deleted or undone; one more for one record stored
    friend bool operator==(const Version&, const Version&) = default;
};

/// The records of one table. All of it throws StoreError. What has returned is stored: it is there after the machine
/// was switched off at that moment.
class RecordStore {
public:
    RecordStore() = default;
    RecordStore(const RecordStore&) = delete;
    RecordStore& operator=(const RecordStore&) = delete;
    virtual ~RecordStore() = default;

    virtual const Table& table() const = 0;
    /// From now on an order by `column`, which points to records of `other`, is that of their texts, and of their keys
    /// where these are the same; who points to no record comes first. `other` has two columns, key and text.
    virtual void orderByText(std::size_t column, const Table& other) = 0;

    /// As it is now; nothing when there is none of this key.
    virtual std::optional<Record> read(const Cells& key) = 0;
    /// At most `count` records that come after `from`, which need not be there any more; backward those before it,
    /// the nearest first. From the end where `from` is nullptr.
    virtual std::vector<Record> walk(const Record* from, Way way, std::int32_t count, const Order& order) = 0;
    /// At most `count` records whose text in `column` begins so, without regard to case as far as the database knows
    /// letters; in the order of these texts.
    virtual std::vector<Record> startingWith(std::size_t column, const std::u16string& beginning,
                                             std::int32_t count) = 0;
    /// The record so many steps after `from`, where 1 is the next; after the first where `from` is nullptr.
    virtual std::optional<Record> skip(const Record* from, std::int64_t steps, const Order& order) = 0;
    /// How many stand after `from` and before `to`; nullptr is the end on that side. It takes as long as there are
    /// many.
    virtual std::int64_t countBetween(const Record* from, const Record* to, const Order& order) = 0;
    std::int64_t count() { return countBetween(nullptr, nullptr, {}); }
    /// Whether there is a record of this key, and it stands after `from`.
    virtual bool isBehind(const Cells& key, const Record& from, const Order& order) = 0;
    /// Whether it stands on this machine, where reading all of it disturbs nobody else.
    virtual bool isNear() = 0;
    /// How it stands now. What reads nothing but this is quick.
    virtual Version version() = 0;
    /// Whether records are as quick to find in this order as by their key.
    virtual bool isQuick(const Order& order) = 0;
    /// Makes them so, for everybody who uses the database.
    virtual void makeQuick(const Order& order) = 0;

    /// Returns the record with all that the database has given to it.
    virtual Record insert(const std::vector<Change>& values) = 0;
    /// The same for whoever does not want it back, the faster the more often it is called for the same columns. What
    /// came before it in a transaction stays when it fails.
    virtual void add(const std::vector<Change>& values) = 0;
    /// Changes these columns of the record if it still stands as it was `read`; then `read` is what it is now.
    virtual Outcome update(Record& read, const std::vector<Change>& values) = 0;
    virtual Outcome remove(const Record& read) = 0;

    /// All between the two is stored together or not at all: many records at once cost little more than one.
    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollBack() = 0;

    /// Whether another program is waited for. What can as well be done later need not wait. Returns whether it was.
    virtual bool setPatient(bool patient) = 0;
};

/// For as long as it is there another program is not waited for.
class Impatience {
public:
    explicit Impatience(RecordStore& records) : Records_(records), Before_(records.setPatient(false)) {}
    ~Impatience() { Records_.setPatient(Before_); }
    Impatience(const Impatience&) = delete;
    Impatience& operator=(const Impatience&) = delete;

private:
    RecordStore& Records_;
    bool Before_;
};

/// A database.
class Store {
public:
    Store() = default;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    virtual ~Store() = default;

    virtual std::vector<std::u16string> tables() = 0;
    /// Nothing when there is none of this name, in any case.
    virtual std::optional<Table> table(std::u16string_view name) = 0;
    /// Makes it with a key and a version, whose columns are added to it, and returns it as it is then.
    virtual Table makeTable(Table table) = 0;
    virtual void addColumn(const Table& table, const Column& column) = 0;
    /// The store outlives it.
    virtual std::unique_ptr<RecordStore> open(const Table& table) = 0;
};

/// Whether a new record leaves this to the database, which knows it better.
bool isLeftToDatabase(const Column& column, const Cell& value);

/// What tells the record from all others.
Cells keyOf(const Table& table, const Record& record);

}  // namespace kel::records
