#pragma once

#include "platform/qt/sql/SqlConnection.h"

namespace kel::qt {

/// The records of one table of an SQL database.
class SqlRecords final : public records::RecordStore {
public:
    /// The connection outlives it.
    SqlRecords(SqlConnection& connection, records::Table table);

    const records::Table& table() const override { return Table_; }
    std::optional<records::Record> read(const records::Cells& key) override;
    std::vector<records::Record> walk(const records::Record* from, records::Way way, std::int32_t count,
                                      const records::Order& order) override;
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
    void setPatient(bool patient) override { Connection_.setPatient(patient); }

private:
    /// A condition and the values in it.
    struct Condition {
        QString text;
        QVariantList values;
    };

    const records::Column& column(std::size_t place) const { return Table_.columns[place]; }
    QString nameOf(std::size_t place) const { return Dialect::quoted(column(place).name); }
    QVariant valueOf(const records::Record& record, std::size_t place) const;
    /// By which columns records are put in a row, the key last.
    std::vector<std::size_t> rowColumns(const records::Order& order) const;
    /// All that stands behind `from` in the row, or in front of it: in one stretch or two, in the row's order, each of
    /// which an index finds. All of it where `from` is nullptr.
    std::vector<Condition> beyond(const records::Record* from, bool isBehind, const records::Order& order) const;
    bool mayBeNothing(std::size_t place) const { return !column(place).notNull; }
    std::int64_t number(const QString& statement, const QVariantList& values);
    QString orderBy(const records::Order& order, bool isReversed) const;
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
    std::vector<records::Record> all(const QString& rest, const QVariantList& values);

    SqlConnection& Connection_;
    records::Table Table_;
    QString Select_;            ///< all columns of it
    std::int64_t Changes_ = 0;  ///< that were made here
    QString Added_;             ///< what `add` ran last, and for which columns
    std::vector<std::size_t> AddedColumns_;
};

}  // namespace kel::qt
