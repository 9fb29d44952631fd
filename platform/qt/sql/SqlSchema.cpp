#include "platform/qt/sql/SqlSchema.h"

#include <algorithm>
#include <QRegularExpression>

#include "platform/qt/base/TextBridge.h"
#include "records/VersionColumn.h"
#include "values/CaseFolding.h"

namespace kel::qt {

namespace {

using records::Column;
using records::ColumnType;
using records::Table;

std::u16string textAt(const QSqlQuery& query, int place) { return query.value(place).toString().toStdU16String(); }

Column* columnNamed(Table& table, const std::u16string& name) {
    const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                    [&](const Column& column) { return compareFolded(column.name, name) == 0; });
    return found == table.columns.end() ? nullptr : &*found;
}

/// "'open'::text" is open; of a day "CURRENT_DATE" is Now; what takes more to work out is nothing.
std::u16string initialOf(const Column& column, const QString& expression) {
    static const QRegularExpression Quoted(QStringLiteral(R"(^'((?:[^']|'')*)'(::[\w\s\(\),"]+)?$)"));
    static const QRegularExpression Plain(QStringLiteral(R"(^\(?(-?[\d.]+|true|false)\)?(::[\w\s\(\),]+)?$)"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression Today(
        QStringLiteral(
            R"(^\(*(current_date|current_timestamp|localtimestamp|now\(\)|date\(('now'(, *'localtime')?)?\)|)"
            R"('now'::text)\)*(::[\w\s\(\),]+)?\)*$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QString text = expression.trimmed();
    if (const auto quoted = Quoted.match(text); quoted.hasMatch())
        return quoted.captured(1).replace(QLatin1String("''"), QLatin1String("'")).toStdU16String();
    if (column.type == ColumnType::Date && Today.match(text).hasMatch()) return u"Now";
    return Plain.match(text).captured(1).toStdU16String();
}

/// To be given nothing is to be given none.
bool isDefault(const QString& expression) {
    static const QRegularExpression Nothing(QStringLiteral(R"(^\s*NULL\s*(::.+)?$)"),
                                            QRegularExpression::CaseInsensitiveOption);
    return !expression.isEmpty() && !Nothing.match(expression).hasMatch();
}

}  // namespace

void setDeclaredType(Column& column, const QString& declared) {
    struct Rule {
        const char* word;
        ColumnType type;
    };
    // The first that is found: "TIMESTAMP" before "TIME", "DATETIME" before both.
    static constexpr Rule Rules[] = {
        {"BOOL", ColumnType::Truth},    {"TIMESTAMP", ColumnType::Moment}, {"DATETIME", ColumnType::Moment},
        {"DATE", ColumnType::Date},     {"TIME", ColumnType::Time},        {"INTERVAL", ColumnType::Other},
        {"POINT", ColumnType::Other},   {"INT", ColumnType::Integer},      {"SERIAL", ColumnType::Integer},
        {"CHAR", ColumnType::Text},     {"CLOB", ColumnType::Text},        {"TEXT", ColumnType::Text},
        {"UUID", ColumnType::Text},     {"DOUBLE", ColumnType::Real},      {"REAL", ColumnType::Real},
        {"FLOA", ColumnType::Real},     {"NUMERIC", ColumnType::Decimal},  {"DECIMAL", ColumnType::Decimal},
        {"MONEY", ColumnType::Decimal},
    };
    const QString upper = declared.toUpper();
    if (upper.contains(QLatin1String("[]"))) {
        column.type = ColumnType::Other;
        return;
    }
    const auto* const rule = std::find_if(std::begin(Rules), std::end(Rules),
                                          [&](const Rule& each) { return upper.contains(QLatin1String(each.word)); });
    column.type = rule == std::end(Rules) ? ColumnType::Other : rule->type;
    static const QRegularExpression Sizes(QStringLiteral(R"(\((\d+)(?:\s*,\s*(\d+))?\))"));
    const QRegularExpressionMatch sizes = Sizes.match(declared);
    if (column.type == ColumnType::Text || column.type == ColumnType::Decimal)
        column.length = sizes.captured(1).toInt();
    if (upper.contains(QLatin1String("SMALLINT"))) column.most = INT16_MAX;
    if (column.type != ColumnType::Decimal) return;
    column.decimals = sizes.captured(2).toInt();
    // Without a scale a file keeps any number, in double precision.
    if (!sizes.hasMatch()) column.type = ColumnType::Real;
}

std::vector<std::u16string> SqlSchema::tables() {
    std::vector<std::u16string> names;
    QSqlQuery& query = Connection_.run(
        Connection_.isServer()
            ? QStringLiteral("SELECT table_name FROM information_schema.tables WHERE table_schema = current_schema() "
                             "AND table_type = 'BASE TABLE' ORDER BY table_name")
            : QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' "
                             "ESCAPE '\\' ORDER BY name"));
    while (query.next()) names.push_back(textAt(query, 0));
    query.finish();
    return names;
}

std::optional<Table> SqlSchema::table(std::u16string_view name) {
    const std::vector<std::u16string> names = tables();
    auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        found = std::find_if(names.begin(), names.end(),
                             [&](const std::u16string& each) { return compareFolded(each, name) == 0; });
    if (found == names.end()) return std::nullopt;
    Table table;
    table.name = *found;
    if (Connection_.isServer())
        readPostgres(table);
    else
        readSqlite(table);
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (table.columns[i].name == records::VersionColumn) table.version = i;
    if (table.key.empty())
        throw records::StoreError(records::StoreError::Kind::Wrong,
                                  "The table " + toQString(table.name).toStdString() +
                                      " has no primary key, so that its records cannot be told apart.");
    return table;
}

void SqlSchema::readSqlite(Table& table) {
    const QVariantList name{toQString(table.name)};
    std::vector<std::pair<int, std::size_t>> key;
    bool isRowNumber = false;
    QSqlQuery& columns = Connection_.run(
        QStringLiteral("SELECT name, type, \"notnull\", dflt_value, pk, hidden FROM pragma_table_xinfo(?)"), name);
    while (columns.next()) {
        Column column;
        column.name = textAt(columns, 0);
        setDeclaredType(column, columns.value(1).toString());
        column.notNull = columns.value(2).toBool();
        column.hasDefault = isDefault(columns.value(3).toString());
        column.initial = initialOf(column, columns.value(3).toString());
        column.generated = columns.value(5).toInt() > 1;
        if (const int place = columns.value(4).toInt(); place > 0) {
            key.emplace_back(place, table.columns.size());
            isRowNumber = columns.value(1).toString().compare(QLatin1String("INTEGER"), Qt::CaseInsensitive) == 0;
        }
        table.columns.push_back(std::move(column));
    }
    columns.finish();
    std::sort(key.begin(), key.end());
    for (const auto& [place, column] : key) table.key.push_back(column);
    QSqlQuery& kind = Connection_.run(QStringLiteral("SELECT wr FROM pragma_table_list(?)"), name);
    const bool hasRowNumbers = kind.next() && !kind.value(0).toBool();
    kind.finish();
    // A key of this very type, and of no other that is a whole number, is the number of the row. Other keys are refused
    // without a value only where there are no such numbers.
    if (hasRowNumbers && key.size() == 1 && isRowNumber) table.columns[table.key.front()].hasDefault = true;
    for (const std::size_t column : table.key) table.columns[column].notNull |= !hasRowNumbers;
    QSqlQuery& references = Connection_.run(
        QStringLiteral("SELECT min(\"from\"), min(\"table\"), min(\"to\") FROM pragma_foreign_key_list(?) GROUP BY id "
                       "HAVING count(*) = 1"),
        name);
    while (references.next())
        if (Column* const column = columnNamed(table, textAt(references, 0)))
            column->reference = records::Reference{textAt(references, 1), textAt(references, 2)};
    references.finish();
    QSqlQuery& unique = Connection_.run(
        QStringLiteral("SELECT min(i.name) FROM pragma_index_list(?) l JOIN pragma_index_info(l.name) i WHERE "
                       "l.\"unique\" AND NOT l.partial GROUP BY l.name HAVING count(*) = 1"),
        name);
    while (unique.next())
        if (Column* const column = columnNamed(table, textAt(unique, 0))) column->unique = true;
    unique.finish();
}

void SqlSchema::readPostgres(Table& table) {
    const QVariantList name{toQString(table.name)};
    const QString ofTable = QStringLiteral(
        " JOIN pg_namespace n ON n.oid = c.relnamespace WHERE c.relname = ? AND n.nspname = current_schema() AND ");
    // A domain is what it is made of, and the words of an enumeration are texts. Whatever else somebody has made is
    // not to be told by its name: "footprint" is no whole number, nor is a range of them.
    const QString type = QStringLiteral(
        "(WITH RECURSIVE base (type, modifier) AS (SELECT a.atttypid, a.atttypmod UNION ALL SELECT t.typbasetype, "
        "t.typtypmod FROM base JOIN pg_type t ON t.oid = base.type WHERE t.typtype = 'd') SELECT CASE WHEN t.typtype = "
        "'e' THEN 'text' WHEN t.typtype = 'b' AND t.oid <> 'money'::regtype THEN format_type(base.type, base.modifier) "
        "ELSE '' END FROM base JOIN pg_type t ON t.oid = base.type WHERE t.typtype <> 'd')");
    QSqlQuery& columns = Connection_.run(
        QStringLiteral("SELECT a.attname, ") + type +
            QStringLiteral(
                ", a.attnotnull OR (SELECT typnotnull FROM pg_type WHERE oid = a.atttypid), a.atthasdef OR "
                "a.attidentity <> '', a.attgenerated <> '' OR a.attidentity = 'a', pg_get_expr(d.adbin, "
                "d.adrelid) FROM pg_attribute a LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = "
                "a.attnum JOIN pg_class c ON c.oid = a.attrelid") +
            ofTable + QStringLiteral("a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum"),
        name);
    while (columns.next()) {
        Column column;
        column.name = textAt(columns, 0);
        setDeclaredType(column, columns.value(1).toString());
        if (columns.value(1).toString() == QLatin1String("integer")) column.most = INT32_MAX;
        // Without a scale it keeps any number, and every digit of it.
        if (columns.value(1).toString() == QLatin1String("numeric")) column.type = ColumnType::Decimal;
        column.notNull = columns.value(2).toBool();
        column.hasDefault = columns.value(3).toBool();
        column.generated = columns.value(4).toBool();
        column.initial = initialOf(column, columns.value(5).toString());
        table.columns.push_back(std::move(column));
    }
    columns.finish();
    const auto each = [&](const QString& query, auto found) {
        QSqlQuery& rows = Connection_.run(query, name);
        while (rows.next())
            if (Column* const column = columnNamed(table, textAt(rows, 0)))
                found(static_cast<std::size_t>(column - table.columns.data()), rows);
        rows.finish();
    };
    const QString ofConstraint = QStringLiteral(
        "SELECT a.attname, r.relname, b.attname FROM pg_constraint k JOIN pg_class c ON c.oid = k.conrelid JOIN "
        "pg_attribute a ON a.attrelid = k.conrelid AND a.attnum = ANY (k.conkey) LEFT JOIN pg_class r ON r.oid = "
        "k.confrelid LEFT JOIN pg_attribute b ON b.attrelid = k.confrelid AND b.attnum = k.confkey[1]");
    each(ofConstraint + ofTable + QStringLiteral("k.contype = 'p' ORDER BY array_position(k.conkey, a.attnum)"),
         [&](std::size_t column, const QSqlQuery&) { table.key.push_back(column); });
    each(ofConstraint + ofTable + QStringLiteral("k.contype = 'f' AND cardinality(k.conkey) = 1 ORDER BY k.oid"),
         [&](std::size_t column, const QSqlQuery& row) {
             table.columns[column].reference = records::Reference{textAt(row, 1), textAt(row, 2)};
         });
    each(QStringLiteral("SELECT a.attname FROM pg_index i JOIN pg_class c ON c.oid = i.indrelid JOIN pg_attribute a ON "
                        "a.attrelid = c.oid AND a.attnum = i.indkey[0]") +
             ofTable + QStringLiteral("i.indisunique AND i.indnkeyatts = 1 AND i.indpred IS NULL"),
         [&](std::size_t column, const QSqlQuery&) { table.columns[column].unique = true; });
}

}  // namespace kel::qt
