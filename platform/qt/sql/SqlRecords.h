#pragma once

#include <map>

#include "platform/qt/sql/SqlConnection.h"

namespace kel::qt {

/// The records of one table of an SQL database.
class SqlRecords final : public records::RecordStore {
public:
    /// The connection outlives it.
    SqlRecords(SqlConnection& connection, records::Table table);

    const records::Table& table() const override { return Table_; }
    void orderByText(std::size_t column, const records::Table& other) override;
    std::optional<records::Record> read(const records::Cells& key) override;
    std::vector<records::Record> walk(const records::Record* from, records::Way way, std::int32_t count,
                                      const records::Order& order) override;
    std::vector<records::Record> startingWith(std::size_t column, const std::u16string& beginning,
                                              std::int32_t count) override;
    std::optional<records::Record> skip(const records::Record* from, std::int64_t steps,
                                        const records::Order& order) override;
    std::int64_t countBetween(const records::Record* from, const records::Record* to,
                              const records::Order& order) override;
    bool isBehind(const records::Cells& key, const records::Record& from, const records::Order& order) override;
    bool isNear() override { return !Connection_.isServer(); }
    records::Version version() override;
    bool isQuick(const records::Order& order) override;
    void makeQuick(const records::Order& order) override;
    records::Record insert(const std::vector<records::Change>& values) override;
    void add(const std::vector<records::Change>& values) override;
    records::Outcome update(records::Record& read, const std::vector<records::Change>& values) override;
    records::Outcome remove(const records::Record& read) override;
    void begin() override { Connection_.begin(); }
    void commit() override { Connection_.commit(); }
    void rollBack() override { Connection_.rollBack(); }
    bool setPatient(bool patient) override { return Connection_.setPatient(patient); }

private:
    /// A condition and the values in it.
    struct Condition {
        QString text;
        QVariantList values;
        Condition operator+(const Condition& further) const {
            return {text + QLatin1String(" AND ") + further.text, values + further.values};
        }
    };

    /// Some records of this table; or, where there are `others`, those that point to one of these.
    struct Stretch {
        Condition own;
        std::optional<Condition> others{};
    };

    const records::Column& column(std::size_t place) const { return Table_.columns[place]; }
    QString nameOf(std::size_t place) const { return Dialect::quoted(column(place).name); }
    QVariant valueOf(const records::Record& record, std::size_t place) const;
    /// By which columns records are put in a row, the key last.
    std::vector<std::size_t> rowColumns(const records::Order& order) const;
    /// All that stands after `from` in the row, or before it: in one stretch or two, in the row's order, each of
    /// which an index finds. All of it where `from` is nullptr.
    std::vector<Condition> beyond(const records::Record* from, bool isBehind, const records::Order& order) const;

    /// As `beyond`, in any order.
    std::vector<Stretch> stretches(const records::Record* from, bool isBehind, const records::Order& order);
    std::vector<records::Record> rowsOf(const Stretch& stretch, bool isReversed, std::int64_t skipped,
                                        std::int64_t count, const records::Order& order);
    std::int64_t countOf(const Stretch& stretch, const records::Order& order);

    // ---- In a row by the texts of another table's records

    /// The other table; nullptr where the order is by what stands in the column itself.
    SqlRecords* textsOf(const records::Order& order) const;
    /// Nothing where the record points to none, or to one that is not there.
    std::optional<records::Record> pointedTo(const records::Record& record, const records::Order& order);
    /// The records that point to none, before all others.
    Condition pointless(const records::Order& order);
    /// Whether some point to one that is not there, which only a file allows.
    bool hasStrays(const records::Order& order, bool isSoughtBeside = false);
    /// Those after `from`, or before it, that point to the same one.
    Condition beside(const records::Record& from, bool isBehind, const records::Order& order) const;
    /// Each with its text and its key as "kel_text" and "kel_key", which no column of this table is called.
    QString others(const Condition& condition) const;
    QString isPointing(const records::Order& order) const {
        return nameOf(*order.column) + QLatin1String(" = kel_key");
    }
    std::vector<records::Record> rowsOfOthers(const Condition& others, bool isReversed, std::int64_t skipped,
                                              std::int64_t count, const records::Order& order);
    std::int64_t countOfOthers(const Condition& others, const records::Order& order);
    std::int64_t countByTexts(const records::Record* from, const records::Record* to, const records::Order& order);
    bool isKnownQuick(const records::Order& order);
    /// That of the other table's records.
    static records::Order textOrder(const records::Order& order) { return {TextPlace, order.descending}; }
    static constexpr std::size_t KeyPlace = 0;  ///< in the other table
    static constexpr std::size_t TextPlace = 1;

    bool mayBeNothing(std::size_t place) const { return !column(place).notNull; }
    std::int64_t countOwn(const Condition& condition);
    /// `from` begins with the name of a table.
    std::vector<records::Record> allOf(const QString& from, const QVariantList& values);
    bool hasIndex(const records::Order& order);
    QString orderBy(const records::Order& order, bool isReversed) const;
    static QString rowTerm(const QString& name, bool mayBeNothing, bool isDown);
    Condition isKey(const records::Cells& key) const;
    QString insertion(const std::vector<records::Change>& values) const;
    QVariantList bound(const std::vector<records::Change>& values) const;
    /// Runs a statement that changes one record, and returns the key that this has now; nothing where the database has
    /// left it out.
    records::Cells changedKey(const QString& statement, const QVariantList& values);
    /// Reads the record, so that nobody changes it before the transaction is over; then whether it is as it was `read`.
    records::Outcome hold(const records::Record& read);
    /// Whether it stands there just so.
    bool isThere(const records::Record& record);
    records::Record recordIn(const QSqlQuery& query) const;
    /// `rest` begins with " WHERE".
    std::vector<records::Record> all(const QString& rest, const QVariantList& values);

    SqlConnection& Connection_;
    records::Table Table_;
    QString Name_;
    QString Select_;                                            ///< all columns from
    std::int64_t Changes_ = 0;                                  ///< that were made here
    std::map<std::size_t, std::unique_ptr<SqlRecords>> Texts_;  ///< by column
    QStringList Watched_;                                       ///< tables whose changes count
    std::map<std::size_t, bool> Quick_;                         ///< what is known of it, by column
    /// By column, with the version of the database in which it was found out.
    std::map<std::size_t, std::pair<std::int64_t, bool>> Strays_;
    QString Added_;  ///< what `add` ran last, and for which columns
    std::vector<std::size_t> AddedColumns_;
};

}  // namespace kel::qt
