#include "platform/qt/sql/SqlRecords.h"

/// Records in the row of the texts of another table's records: first those that point to none, then for each of the
/// others, in the row of their texts, those that point to it.
namespace kel::qt {

using records::Order;
using records::Record;

void SqlRecords::orderByText(std::size_t column, const records::Table& other) {
    Texts_[column] = std::make_unique<SqlRecords>(Connection_, other);
    Watched_.append(Dialect::quoted(other.name));
}

SqlRecords* SqlRecords::textsOf(const Order& order) const {
    const auto texts = order.column ? Texts_.find(*order.column) : Texts_.end();
    return texts == Texts_.end() ? nullptr : texts->second.get();
}

std::optional<Record> SqlRecords::pointedTo(const Record& record, const Order& order) {
    const records::Cell& key = record.cells[*order.column];
    return records::isNull(key) ? std::nullopt : textsOf(order)->read({key});
}

// ---- Those that point to none

SqlRecords::Condition SqlRecords::pointless(const Order& order) {
    const QString isNothing = nameOf(*order.column) + QLatin1String(" IS NULL");
    if (!hasStrays(order)) return {isNothing, {}};
    return {QStringLiteral("(%1 OR NOT EXISTS (SELECT 1 FROM %2 WHERE %3))")
                .arg(isNothing, textsOf(order)->others({QStringLiteral("1 = 1"), {}}), isPointing(order)),
            {}};
}

/// A server keeps keys whole. In a file another program may have deleted what is pointed to; that is looked for again
/// when another one has changed something.
bool SqlRecords::hasStrays(const Order& order, bool isSoughtBeside) {
    if (Connection_.isServer()) return false;
    const std::int64_t now = version().others;
    const auto known = Strays_.find(*order.column);
    if (known != Strays_.end() && known->second.first == now) return known->second.second;
    const QString strays = QStringLiteral(
                               "SELECT count(*) FROM (SELECT 1 FROM %1 WHERE %2 IS NOT NULL AND NOT EXISTS "
                               "(SELECT 1 FROM %3 WHERE %4) LIMIT 1) AS strays")
                               .arg(Name_, nameOf(*order.column), textsOf(order)->others({QStringLiteral("1 = 1"), {}}),
                                    isPointing(order));
    std::int64_t found = 0;
    if (isSoughtBeside)
        Connection_.beside([&](SqlConnection& own) { found = own.number(strays, {}); });
    else
        found = Connection_.number(strays, {});
    Strays_[*order.column] = {now, found > 0};
    return found > 0;
}

// ---- Those that point to the same one

SqlRecords::Condition SqlRecords::beside(const Record& from, bool isBehind, const Order& order) const {
    QStringList names;
    QStringList marks;
    QVariantList values{valueOf(from, *order.column)};
    for (const std::size_t each : Table_.key) {
        names.append(nameOf(each));
        marks.append(QStringLiteral("?"));
        values.append(valueOf(from, each));
    }
    const bool isAbove = isBehind != order.descending;
    return {QStringLiteral("%1 = ? AND (%2) %3 (%4)")
                .arg(nameOf(*order.column), names.join(QLatin1String(", ")), QLatin1String(isAbove ? ">" : "<"),
                     marks.join(QLatin1String(", "))),
            values};
}

// ---- Those that point to each of some

QString SqlRecords::others(const Condition& condition) const {
    return QStringLiteral("(SELECT %1 AS kel_key, %2 AS kel_text FROM %3 WHERE %4) AS kel_other")
        .arg(nameOf(KeyPlace), nameOf(TextPlace), Name_, condition.text);
}

bool SqlRecords::isKnownQuick(const Order& order) {
    const auto known = Quick_.find(*order.column);
    return known == Quick_.end() ? isQuick(order) : known->second;
}

std::vector<Record> SqlRecords::rowsOfOthers(const Condition& others, bool isReversed, std::int64_t skipped,
                                             std::int64_t count, const Order& order) {
    const SqlRecords& texts = *textsOf(order);
    const bool isDown = order.descending != isReversed;
    const QString byKey = orderBy({std::nullopt, order.descending}, isReversed);
    QVariantList values = others.values;
    QString pairs = QStringLiteral(" JOIN %1 ON %2").arg(Name_, isPointing(order));
    if (isKnownQuick(order)) {
        pairs = Connection_.dialect().rowsForEach(Name_, isPointing(order), byKey);
        // No more of any is wanted than of all.
        if (Connection_.dialect().wantsMostForEach()) values.append(static_cast<qlonglong>(skipped + count));
    }
    const QString row = rowTerm(QStringLiteral("kel_text"), texts.mayBeNothing(TextPlace), isDown) +
                        QLatin1String(", ") + rowTerm(QStringLiteral("kel_key"), false, isDown);
    values << static_cast<qlonglong>(count) << static_cast<qlonglong>(skipped);
    return allOf(
        texts.others(others) + pairs +
            QStringLiteral(" ORDER BY %1, %2 LIMIT ? OFFSET ?").arg(row, byKey.section(QLatin1String(" BY "), 1)),
        values);
}

std::int64_t SqlRecords::countOfOthers(const Condition& others, const Order& order) {
    const QString those = textsOf(order)->others(others);
    // Told how to, as a server takes so few for many.
    const QString count =
        isKnownQuick(order)
            ? QStringLiteral("SELECT CAST(coalesce(sum((SELECT count(*) FROM %2 WHERE %3)), 0) AS BIGINT) FROM %1")
            : QStringLiteral("SELECT count(*) FROM %1 JOIN %2 ON %3");
    return Connection_.number(count.arg(those, Name_, isPointing(order)), others.values);
}

std::int64_t SqlRecords::countByTexts(const Record* from, const Record* to, const Order& order) {
    if (order.descending) return countByTexts(to, from, {order.column, false});
    const std::optional<Record> first = from == nullptr ? std::nullopt : pointedTo(*from, order);
    const std::optional<Record> last = to == nullptr ? std::nullopt : pointedTo(*to, order);
    if (first && last && first->cells[KeyPlace] == last->cells[KeyPlace])
        return countOwn(beside(*from, true, order) + beside(*to, false, order));
    std::int64_t sum = 0;
    const bool endsPointless = to != nullptr && !last;
    if (!first)
        for (const Condition& behind : beyond(from, true, order))
            for (const Condition& before : beyond(endsPointless ? to : nullptr, false, order))
                sum += countOwn(pointless(order) + behind + before);
    if (endsPointless) return sum;
    if (first) sum += countOwn(beside(*from, true, order));
    if (last) sum += countOwn(beside(*to, false, order));
    SqlRecords& texts = *textsOf(order);
    for (const Condition& behind : texts.beyond(first ? &*first : nullptr, true, textOrder(order)))
        for (const Condition& before : texts.beyond(last ? &*last : nullptr, false, textOrder(order)))
            sum += countOfOthers(behind + before, order);
    return sum;
}

}  // namespace kel::qt
