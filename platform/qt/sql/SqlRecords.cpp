#include "platform/qt/sql/SqlRecords.h"

#include <algorithm>
#include <QStringList>

namespace kel::qt {

namespace {

using records::Cells;
using records::Change;
using records::Column;
using records::Order;
using records::Outcome;
using records::Record;
using records::Way;

}  // namespace

SqlRecords::SqlRecords(SqlConnection& connection, records::Table table)
    : Connection_(connection), Table_(std::move(table)) {
    QStringList columns;
    for (const Column& each : Table_.columns) columns.append(Connection_.dialect().readExpression(each));
    Select_ = QStringLiteral("SELECT %1 FROM %2").arg(columns.join(QLatin1String(", ")), Dialect::quoted(Table_.name));
}

// ---- Reading

QVariant SqlRecords::valueOf(const Record& record, std::size_t place) const {
    return Connection_.dialect().toSql(record.cells[place], column(place));
}

Record SqlRecords::recordIn(const QSqlQuery& query) const {
    Record record;
    record.cells.reserve(Table_.columns.size());
    for (std::size_t i = 0; i < Table_.columns.size(); ++i)
        record.cells.push_back(Connection_.dialect().fromSql(query.value(static_cast<int>(i)), column(i)));
    return record;
}

std::vector<Record> SqlRecords::all(const QString& rest, const QVariantList& values) {
    QSqlQuery& query = Connection_.run(Select_ + rest, values);
    std::vector<Record> found;
    while (query.next()) found.push_back(recordIn(query));
    query.finish();
    return found;
}

SqlRecords::Condition SqlRecords::isKey(const Cells& key) const {
    Condition condition;
    for (std::size_t i = 0; i < Table_.key.size(); ++i) {
        condition.text += QLatin1String(i == 0 ? "" : " AND ") + nameOf(Table_.key[i]) + QLatin1String(" = ?");
        condition.values.append(Connection_.dialect().toSql(key[i], column(Table_.key[i])));
    }
    return condition;
}

std::optional<Record> SqlRecords::read(const Cells& key) {
    const Condition condition = isKey(key);
    std::vector<Record> found = all(QLatin1String(" WHERE ") + condition.text, condition.values);
    if (found.empty()) return std::nullopt;
    return std::move(found.front());
}

std::int64_t SqlRecords::count() {
    QSqlQuery& query = Connection_.run(QStringLiteral("SELECT count(*) FROM ") + Dialect::quoted(Table_.name));
    const std::int64_t number = query.next() ? query.value(0).toLongLong() : 0;
    query.finish();
    return number;
}

// ---- In a row

std::vector<std::size_t> SqlRecords::rowColumns(const Order& order) const {
    std::vector<std::size_t> columns;
    if (order.column) columns.push_back(*order.column);
    for (const std::size_t key : Table_.key)
        if (order.column != key) columns.push_back(key);
    return columns;
}

QString SqlRecords::orderBy(const Order& order, bool isReversed) const {
    const bool isDown = order.descending != isReversed;
    QStringList terms;
    for (const std::size_t each : rowColumns(order)) {
        QString term = nameOf(each) + QLatin1String(isDown ? " DESC" : " ASC");
        // A record without a value stands in front of all others, in every database.
        if (!column(each).notNull && !Table_.isKey(each))
            term += QLatin1String(isDown ? " NULLS LAST" : " NULLS FIRST");
        terms.append(term);
    }
    return QLatin1String(" ORDER BY ") + terms.join(QLatin1String(", "));
}

SqlRecords::Condition SqlRecords::beyond(const Record& from, bool isBehind, const Order& order) const {
    const bool isAbove = isBehind != order.descending;
    const std::vector<std::size_t> columns = rowColumns(order);
    // From the last column forward: beyond in this one, or the same here and beyond in those that follow.
    Condition condition;
    for (auto each = columns.rbegin(); each != columns.rend(); ++each) {
        const QString name = nameOf(*each);
        const bool isNothing = records::isNull(from.cells[*each]);
        const QVariant value = valueOf(from, *each);
        QString further;
        QString same = name + QLatin1String(isNothing ? " IS NULL" : " = ?");
        QVariantList values;
        if (isNothing) {
            further = isAbove ? name + QLatin1String(" IS NOT NULL") : QString();
        } else {
            further = name + QLatin1String(isAbove ? " > ?" : " < ?");
            values.append(value);
            if (!isAbove && !column(*each).notNull && !Table_.isKey(*each))
                further += QLatin1String(" OR ") + name + QLatin1String(" IS NULL");
        }
        if (condition.text.isEmpty()) {
            condition.text = further.isEmpty() ? QStringLiteral("1 = 0") : further;
        } else {
            if (!further.isEmpty()) further += QLatin1String(" OR ");
            condition.text =
                further + QLatin1Char('(') + same + QLatin1String(" AND (") + condition.text + QLatin1String("))");
            if (!isNothing) values.append(value);
        }
        condition.values = values + condition.values;
    }
    return condition;
}

std::vector<Record> SqlRecords::walk(const Record* from, Way way, std::int32_t count, const Order& order) {
    const bool isForward = way == Way::Forward;
    Condition condition;
    if (from != nullptr) condition = beyond(*from, isForward, order);
    const QString where = condition.text.isEmpty() ? QString() : QLatin1String(" WHERE ") + condition.text;
    return all(where + orderBy(order, !isForward) + QLatin1String(" LIMIT ") + QString::number(count),
               condition.values);
}

std::vector<Record> SqlRecords::rows(std::int64_t place, std::int32_t count, const Order& order) {
    if (place < 0) return {};
    return all(orderBy(order, false) + QLatin1String(" LIMIT ? OFFSET ?"),
               {QVariant(count), QVariant(static_cast<qlonglong>(place))});
}

std::int64_t SqlRecords::placeOf(const Record& record, const Order& order) {
    const Condition before = beyond(record, false, order);
    QSqlQuery& query = Connection_.run(
        QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(Dialect::quoted(Table_.name), before.text),
        before.values);
    const std::int64_t number = query.next() ? query.value(0).toLongLong() : 0;
    query.finish();
    return number;
}

// ---- Changing

QString SqlRecords::insertion(const std::vector<Change>& values) const {
    QStringList names;
    QStringList marks;
    for (const Change& change : values) {
        names.append(nameOf(change.column));
        marks.append(QStringLiteral("?"));
    }
    const QString what =
        names.isEmpty()
            ? QStringLiteral("DEFAULT VALUES")
            : QStringLiteral("(%1) VALUES (%2)").arg(names.join(QLatin1String(", ")), marks.join(QLatin1String(", ")));
    return QStringLiteral("INSERT INTO %1 %2").arg(Dialect::quoted(Table_.name), what);
}

QVariantList SqlRecords::bound(const std::vector<Change>& values) const {
    QVariantList bound;
    bound.reserve(static_cast<qsizetype>(values.size()));
    for (const Change& change : values) bound.append(Connection_.dialect().toSql(change.value, column(change.column)));
    return bound;
}

void SqlRecords::add(const std::vector<Change>& values) {
    const auto isSame = [](const Change& change, std::size_t column) { return change.column == column; };
    if (Added_.isEmpty() ||
        !std::equal(values.begin(), values.end(), AddedColumns_.begin(), AddedColumns_.end(), isSame)) {
        Added_ = insertion(values);
        AddedColumns_.clear();
        for (const Change& change : values) AddedColumns_.push_back(change.column);
    }
    Connection_.runAlone(Added_, bound(values));
}

Record SqlRecords::insert(const std::vector<Change>& values) {
    QStringList keys;
    for (const std::size_t key : Table_.key) keys.append(Connection_.dialect().readExpression(column(key)));
    const QString statement = insertion(values) + QLatin1String(" RETURNING ") + keys.join(QLatin1Char(','));
    std::optional<Record> stored;
    Connection_.transact(
        [&] {
            QSqlQuery& query = Connection_.run(statement, bound(values));
            Cells key;
            if (query.next())
                for (std::size_t i = 0; i < Table_.key.size(); ++i)
                    key.push_back(
                        Connection_.dialect().fromSql(query.value(static_cast<int>(i)), column(Table_.key[i])));
            query.finish();
            stored = key.empty() ? std::nullopt : read(key);
            if (!stored)
                throw records::StoreError(records::StoreError::Kind::Wrong,
                                          "The database did not keep the new record.");
        },
        [&] {
            // A key that the database has given is nobody else's; meanwhile the record may have been changed.
            const bool isKeyGiven = std::none_of(values.begin(), values.end(),
                                                 [&](const Change& change) { return Table_.isKey(change.column); });
            return isKeyGiven ? read(keyOf(Table_, *stored)).has_value() : isThere(*stored);
        });
    return std::move(*stored);
}

bool SqlRecords::isThere(const Record& record) { return read(keyOf(Table_, record)) == record; }

Outcome SqlRecords::hold(const Record& read) {
    const Condition condition = isKey(keyOf(Table_, read));
    const std::vector<Record> now =
        all(QLatin1String(" WHERE ") + condition.text + Connection_.dialect().forUpdate(), condition.values);
    if (now.empty()) return Outcome::Gone;
    return now.front() == read ? Outcome::Done : Outcome::Changed;
}

Outcome SqlRecords::update(Record& read, const std::vector<Change>& values) {
    QStringList sets;
    QVariantList bound;
    Record after = read;
    for (const Change& change : values) {
        sets.append(nameOf(change.column) + QLatin1String(" = ?"));
        bound.append(Connection_.dialect().toSql(change.value, column(change.column)));
        after.cells[change.column] = change.value;
    }
    if (Table_.version) sets.append(QStringLiteral("%1 = %1 + 1").arg(nameOf(*Table_.version)));
    const Condition condition = isKey(keyOf(Table_, read));
    const QString statement = QStringLiteral("UPDATE %1 SET %2 WHERE %3")
                                  .arg(Dialect::quoted(Table_.name), sets.join(QLatin1String(", ")), condition.text);
    Outcome outcome = Outcome::Done;
    std::optional<Record> stored;
    Connection_.transact(
        [&] {
            outcome = hold(read);
            if (outcome != Outcome::Done) return;
            Connection_.run(statement, bound + condition.values).finish();
            stored = this->read(keyOf(Table_, after));
        },
        [&] { return stored && isThere(*stored); });
    if (stored) read = *stored;
    return outcome;
}

Outcome SqlRecords::remove(const Record& read) {
    const Condition condition = isKey(keyOf(Table_, read));
    const QString statement =
        QStringLiteral("DELETE FROM %1 WHERE %2").arg(Dialect::quoted(Table_.name), condition.text);
    Outcome outcome = Outcome::Done;
    Connection_.transact(
        [&] {
            outcome = hold(read);
            if (outcome == Outcome::Done) Connection_.run(statement, condition.values).finish();
        },
        [&] { return outcome == Outcome::Done && !this->read(keyOf(Table_, read)); });
    return outcome;
}

}  // namespace kel::qt
