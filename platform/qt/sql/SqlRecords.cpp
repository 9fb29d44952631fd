#include "platform/qt/sql/SqlRecords.h"

#include <algorithm>
#include <QStringList>

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

namespace {

using records::Cells;
using records::Change;
using records::Column;
using records::Order;
using records::Outcome;
using records::Record;
using records::Way;

const QLatin1String Window(" LIMIT ? OFFSET ?");

/// A trigger or a policy may leave a record out without a word.
records::StoreError notTaken(const char* what) {
    return {records::StoreError::Kind::Constraint,
            std::string("The database did not ") + what + ", and gives no reason."};
}

}  // namespace

SqlRecords::SqlRecords(SqlConnection& connection, records::Table table)
    : Connection_(connection), Table_(std::move(table)), Name_(Dialect::quoted(Table_.name)), Watched_(Name_) {
    QStringList columns;
    for (const Column& each : Table_.columns) columns.append(Connection_.dialect().readExpression(each));
    Select_ = QStringLiteral("SELECT %1 FROM ").arg(columns.join(QLatin1String(", ")));
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
    return allOf(Name_ + rest, values);
}

std::vector<Record> SqlRecords::allOf(const QString& from, const QVariantList& values) {
    QSqlQuery& query = Connection_.run(Select_ + from, values);
    std::vector<Record> found;
    while (query.next()) found.push_back(recordIn(query));
    query.finish();
    return found;
}

SqlRecords::Condition SqlRecords::isKey(const Cells& key) const {
    Condition condition;
    for (std::size_t i = 0; i < Table_.key.size(); ++i) {
        const bool isNothing = records::isNull(key[i]);
        condition.text += QLatin1String(i == 0 ? "" : " AND ") + nameOf(Table_.key[i]) +
                          QLatin1String(isNothing ? " IS NULL" : " = ?");
        if (!isNothing) condition.values.append(Connection_.dialect().toSql(key[i], column(Table_.key[i])));
    }
    return condition;
}

std::optional<Record> SqlRecords::read(const Cells& key) {
    const Condition condition = isKey(key);
    std::vector<Record> found = all(QLatin1String(" WHERE ") + condition.text, condition.values);
    if (found.empty()) return std::nullopt;
    return std::move(found.front());
}

// ---- In a row

std::vector<std::size_t> SqlRecords::rowColumns(const Order& order) const {
    std::vector<std::size_t> columns;
    if (order.column) columns.push_back(*order.column);
    for (const std::size_t key : Table_.key)
        if (order.column != key) columns.push_back(key);
    return columns;
}

/// A record without a value comes before all others, in every database.
QString SqlRecords::rowTerm(const QString& name, bool mayBeNothing, bool isDown) {
    const QString nothing = mayBeNothing ? QLatin1String(isDown ? " NULLS LAST" : " NULLS FIRST") : QLatin1String();
    return name + QLatin1String(isDown ? " DESC" : " ASC") + nothing;
}

QString SqlRecords::orderBy(const Order& order, bool isReversed) const {
    QStringList terms;
    for (const std::size_t each : rowColumns(order))
        terms.append(rowTerm(nameOf(each), mayBeNothing(each), order.descending != isReversed));
    return QLatin1String(" ORDER BY ") + terms.join(QLatin1String(", "));
}

std::vector<SqlRecords::Condition> SqlRecords::beyond(const Record* from, bool isBehind, const Order& order) const {
    if (from == nullptr) return {{QStringLiteral("1 = 1"), {}}};
    const bool isAbove = isBehind != order.descending;
    std::vector<std::size_t> columns = rowColumns(order);
    const QString first = nameOf(columns.front());
    const bool isNothing = records::isNull(from->cells[columns.front()]);
    Condition same;  // among the records that have nothing there, or by the value
    if (isNothing) {
        same.text = first + QLatin1String(" IS NULL AND ");
        columns.erase(columns.begin());
    }
    QStringList names;
    QStringList marks;
    for (const std::size_t each : columns) {
        names.append(nameOf(each));
        marks.append(QStringLiteral("?"));
        same.values.append(valueOf(*from, each));
    }
    // Records that have nothing at all to tell them apart stand at one place.
    same.text += names.isEmpty() ? QStringLiteral("1 = 0")
                                 : QStringLiteral("(%1) %2 (%3)")
                                       .arg(names.join(QLatin1String(", ")), QLatin1String(isAbove ? ">" : "<"),
                                            marks.join(QLatin1String(", ")));
    if (isNothing && isAbove) return {same, {first + QLatin1String(" IS NOT NULL"), {}}};
    if (!isNothing && !isAbove && mayBeNothing(rowColumns(order).front()))
        return {same, {first + QLatin1String(" IS NULL"), {}}};
    return {same};
}

std::vector<SqlRecords::Stretch> SqlRecords::stretches(const Record* from, bool isBehind, const Order& order) {
    SqlRecords* const texts = textsOf(order);
    std::vector<Stretch> found;
    if (texts == nullptr) {
        for (Condition& each : beyond(from, isBehind, order)) found.push_back({std::move(each)});
        return found;
    }
    const bool isUp = isBehind != order.descending;
    const std::optional<Record> pointed = from == nullptr ? std::nullopt : pointedTo(*from, order);
    const bool isPointless = from != nullptr && !pointed;
    const auto addPointless = [&] {
        for (const Condition& each : beyond(isPointless ? from : nullptr, isBehind, order))
            found.push_back({pointless(order) + each});
    };
    if (isUp && !pointed) addPointless();
    if (pointed) found.push_back({beside(*from, isBehind, order)});
    if (isUp || !isPointless)
        for (Condition& each : texts->beyond(pointed ? &*pointed : nullptr, isBehind, textOrder(order)))
            found.push_back({{}, std::move(each)});
    if (!isUp) addPointless();
    return found;
}

std::vector<Record> SqlRecords::rowsOf(const Stretch& stretch, bool isReversed, std::int64_t skipped,
                                       std::int64_t count, const Order& order) {
    if (stretch.others) return rowsOfOthers(*stretch.others, isReversed, skipped, count, order);
    return all(QLatin1String(" WHERE ") + stretch.own.text + orderBy(order, isReversed) + Window,
               stretch.own.values + QVariantList{static_cast<qlonglong>(count), static_cast<qlonglong>(skipped)});
}

std::int64_t SqlRecords::countOf(const Stretch& stretch, const Order& order) {
    return stretch.others ? countOfOthers(*stretch.others, order) : countOwn(stretch.own);
}

std::vector<Record> SqlRecords::walk(const Record* from, Way way, std::int32_t count, const Order& order) {
    const bool isForward = way == Way::Forward;
    std::vector<Record> found;
    for (const Stretch& stretch : stretches(from, isForward, order)) {
        const auto missing = count - static_cast<std::int32_t>(found.size());
        if (missing <= 0) break;
        std::vector<Record> more = rowsOf(stretch, !isForward, 0, missing, order);
        found.insert(found.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    }
    return found;
}

/// A file knows the case of no letters but those of ASCII; the first of a name is a capital mostly.
std::vector<Record> SqlRecords::startingWith(std::size_t column, const std::u16string& beginning, std::int32_t count) {
    QString typed = toQString(beginning);
    for (const char special : {'\\', '%', '_'})
        typed.replace(QLatin1Char(special), QLatin1Char('\\') + QString(QLatin1Char(special)));
    const QString capital = typed.left(1).toUpper() + typed.mid(1);
    const QString isLike = nameOf(column) + Connection_.dialect().like();
    return all(QStringLiteral(" WHERE (%1 OR %1)%2 LIMIT ?").arg(isLike, orderBy({column, false}, false)),
               {typed + QLatin1Char('%'), capital + QLatin1Char('%'), count});
}

std::optional<Record> SqlRecords::skip(const Record* from, std::int64_t steps, const Order& order) {
    std::int64_t further = from == nullptr ? steps : steps - 1;
    const std::vector<Stretch> all = stretches(from, true, order);
    for (const Stretch& stretch : all) {
        std::vector<Record> found = rowsOf(stretch, false, further, 1, order);
        if (!found.empty()) return std::move(found.front());
        if (&stretch != &all.back()) further -= countOf(stretch, order);
    }
    return std::nullopt;
}

std::int64_t SqlRecords::countOwn(const Condition& condition) {
    return Connection_.number(QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(Name_, condition.text),
                              condition.values);
}

std::int64_t SqlRecords::countBetween(const Record* from, const Record* to, const Order& order) {
    if (from == nullptr && to == nullptr) return Connection_.number(QLatin1String("SELECT count(*) FROM ") + Name_, {});
    if (textsOf(order) != nullptr) return countByTexts(from, to, order);
    std::int64_t sum = 0;
    for (const Condition& behind : beyond(from, true, order))
        for (const Condition& before : beyond(to, false, order)) sum += countOwn(behind + before);
    return sum;
}

bool SqlRecords::isBehind(const Cells& key, const Record& from, const Order& order) {
    const Condition its = isKey(key);
    const std::vector<Stretch> behind = stretches(&from, true, order);
    return std::any_of(behind.begin(), behind.end(), [&](const Stretch& stretch) {
        if (!stretch.others) return countOwn(its + stretch.own) > 0;
        const QString pairs = textsOf(order)->others(*stretch.others) + QLatin1String(" JOIN ") + Name_;
        return Connection_.number(
                   QStringLiteral("SELECT count(*) FROM %1 ON %2 WHERE %3").arg(pairs, isPointing(order), its.text),
                   stretch.others->values + its.values) > 0;
    });
}

records::Version SqlRecords::version() {
    QSqlQuery& query = Connection_.run(Connection_.dialect().versionQuery(), {Watched_.join(QChar(1))});
    records::Version version;
    if (query.next()) version = {query.value(0).toLongLong(), query.value(1).toLongLong()};
    query.finish();
    if (Connection_.isServer()) version.own = Changes_;
    version.own += Connection_.rollBacks();
    return version;
}

bool SqlRecords::isQuick(const Order& order) {
    if (!order.column) return true;
    SqlRecords* const texts = textsOf(order);
    const bool isQuick = hasIndex(order) && (texts == nullptr || texts->hasIndex(textOrder(order)));
    Quick_[*order.column] = isQuick;
    return isQuick;
}

bool SqlRecords::hasIndex(const Order& order) {
    if (Table_.key.front() == *order.column) return true;
    QSqlQuery& query = Connection_.run(Connection_.dialect().indexQuery(),
                                       {toQString(Table_.name), toQString(column(*order.column).name)});
    const bool isThere = query.next();
    query.finish();
    return isThere;
}

void SqlRecords::makeQuick(const Order& order) {
    if (!order.column) return;
    if (!hasIndex(order)) {
        QStringList columns;
        for (const std::size_t each : rowColumns(order))
            columns.append(nameOf(each) + (mayBeNothing(each) ? Connection_.dialect().indexSuffix() : QString()));
        const QString statement = QStringLiteral("CREATE INDEX %1 ON %2 (%3)")
                                      .arg(Dialect::quoted(Table_.name + u"_by_" + column(*order.column).name), Name_,
                                           columns.join(QLatin1String(", ")));
        Connection_.beside([&](SqlConnection& own) { own.execute(statement); });
    }
    if (SqlRecords* const texts = textsOf(order)) {
        texts->makeQuick(textOrder(order));
        hasStrays(order, true);
    }
    Quick_.erase(*order.column);
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
    return QStringLiteral("INSERT INTO %1 %2").arg(Name_, what);
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
    if (Connection_.runAlone(Added_, bound(values)) == 0) throw notTaken("keep the new record");
    ++Changes_;
}

Cells SqlRecords::changedKey(const QString& statement, const QVariantList& values) {
    QStringList keys;
    for (const std::size_t key : Table_.key) keys.append(Connection_.dialect().readExpression(column(key)));
    QSqlQuery& query = Connection_.run(statement + QLatin1String(" RETURNING ") + keys.join(QLatin1Char(',')), values);
    Cells key;
    if (query.next())
        for (std::size_t i = 0; i < Table_.key.size(); ++i)
            key.push_back(Connection_.dialect().fromSql(query.value(static_cast<int>(i)), column(Table_.key[i])));
    query.finish();
    return key;
}

Record SqlRecords::insert(const std::vector<Change>& values) {
    const QString statement = insertion(values);
    std::optional<Record> stored;
    Connection_.transact(
        [&] {
            const Cells key = changedKey(statement, bound(values));
            stored = key.empty() ? std::nullopt : read(key);
            if (!stored) throw notTaken("keep the new record");
        },
        [&] {
            // A key that the database has given is nobody else's; meanwhile the record may have been changed.
            const bool isKeyGiven = std::none_of(values.begin(), values.end(),
                                                 [&](const Change& change) { return Table_.isKey(change.column); });
            return isKeyGiven ? read(keyOf(Table_, *stored)).has_value() : isThere(*stored);
        });
    ++Changes_;
    return std::move(*stored);
}

bool SqlRecords::isThere(const Record& record) { return read(keyOf(Table_, record)) == record; }

Outcome SqlRecords::hold(const Record& read) {
    const Cells key = keyOf(Table_, read);
    if (std::any_of(key.begin(), key.end(), &records::isNull))
        throw records::StoreError(
            records::StoreError::Kind::Constraint,
            "This record has no key that tells it from others, so that it cannot be changed here.");
    const Condition condition = isKey(key);
    const std::vector<Record> now =
        all(QLatin1String(" WHERE ") + condition.text + Connection_.dialect().forUpdate(), condition.values);
    if (now.empty()) return Outcome::Gone;
    return now.front() == read ? Outcome::Done : Outcome::Changed;
}

Outcome SqlRecords::update(Record& read, const std::vector<Change>& values) {
    QStringList sets;
    for (const Change& change : values) sets.append(nameOf(change.column) + QLatin1String(" = ?"));
    if (Table_.version) sets.append(QStringLiteral("%1 = %1 + 1").arg(nameOf(*Table_.version)));
    const Condition condition = isKey(keyOf(Table_, read));
    const QString statement =
        QStringLiteral("UPDATE %1 SET %2 WHERE %3").arg(Name_, sets.join(QLatin1String(", ")), condition.text);
    Outcome outcome = Outcome::Done;
    std::optional<Record> stored;
    Connection_.transact(
        [&] {
            outcome = hold(read);
            if (outcome != Outcome::Done) return;
            const Cells key = changedKey(statement, bound(values) + condition.values);
            stored = key.empty() ? std::nullopt : this->read(key);
            if (!stored) throw notTaken("keep the change");
        },
        [&] { return stored && isThere(*stored); });
    if (outcome == Outcome::Done) ++Changes_;
    if (stored) read = *stored;
    return outcome;
}

Outcome SqlRecords::remove(const Record& read) {
    const Condition condition = isKey(keyOf(Table_, read));
    const QString statement = QStringLiteral("DELETE FROM %1 WHERE %2").arg(Name_, condition.text);
    Outcome outcome = Outcome::Done;
    Connection_.transact(
        [&] {
            outcome = hold(read);
            if (outcome == Outcome::Done && changedKey(statement, condition.values).empty())
                throw notTaken("delete the record");
        },
        [&] { return outcome == Outcome::Done && !this->read(keyOf(Table_, read)); });
    if (outcome == Outcome::Done) ++Changes_;
    return outcome;
}

}  // namespace kel::qt
