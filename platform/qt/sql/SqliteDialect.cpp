#include <QSqlError>

#include "platform/qt/base/TextBridge.h"
#include "platform/qt/sql/Dialect.h"
#include "platform/qt/sql/SqliteFile.h"

namespace kel::qt {

namespace {

using records::Cell;
using records::Column;
using records::StoreError;
using Kind = StoreError::Kind;

constexpr int PrimaryCode = 0xFF;  ///< the rest of an error's number says more

class SqliteDialect final : public Dialect {
public:
    QStringList setUp() const override {
        return {QStringLiteral("PRAGMA foreign_keys = ON"), QStringLiteral("PRAGMA synchronous = FULL"),
                QStringLiteral("PRAGMA cache_size = -16000")};
    }
    QStringList mark() const override {
        return {QStringLiteral("PRAGMA application_id = %1").arg(FileMark),
                QStringLiteral("PRAGMA user_version = %1").arg(FileVersion)};
    }

    QString wholeNumberType() const override { return QStringLiteral("INTEGER"); }
    QString keyDeclaration(const QString& quotedName) const override {
        return quotedName + QStringLiteral(" INTEGER PRIMARY KEY AUTOINCREMENT");
    }
    QString forUpdate() const override { return {}; }
    QString beginToChange() const override { return QStringLiteral("BEGIN IMMEDIATE"); }
    bool failureEndsTransaction() const override { return false; }

    QString versionQuery() const override {
        return QStringLiteral("SELECT data_version, total_changes() FROM pragma_data_version WHERE ? IS NOT NULL");
    }
    QString indexQuery() const override {
        return QStringLiteral(
            "SELECT 1 FROM pragma_index_list(?) AS list WHERE list.partial = 0 AND "
            "(SELECT name FROM pragma_index_info(list.name) WHERE seqno = 0) = ?");
    }
    QString indexSuffix() const override { return {}; }
    QString like() const override { return QStringLiteral(" LIKE ? ESCAPE '\\'"); }
    QString rowsForEach(const QString& table, const QString& condition, const QString& /*orderBy*/) const override {
        return QStringLiteral(" CROSS JOIN %1 ON %2").arg(table, condition);
    }
    bool wantsMostForEach() const override { return false; }

    QVariant toSql(const Cell& cell, const Column& /*column*/) const override {
        if (const auto* const text = std::get_if<std::u16string>(&cell)) return toQString(*text);
        if (const auto* const whole = std::get_if<std::int64_t>(&cell)) return static_cast<qlonglong>(*whole);
        if (const auto* const number = std::get_if<double>(&cell)) return *number;
        if (const auto* const bytes = std::get_if<records::Bytes>(&cell))
            return QByteArray(reinterpret_cast<const char*>(bytes->bytes.data()),
                              static_cast<qsizetype>(bytes->bytes.size()));
        return {};
    }

    /// By what stands there: a column of this database takes values of every type.
    Cell fromSql(const QVariant& value, const Column& /*column*/) const override {
        if (value.isNull()) return Null{};
        switch (value.typeId()) {
            case QMetaType::LongLong:
            case QMetaType::Int: return static_cast<std::int64_t>(value.toLongLong());
            case QMetaType::Double: return value.toDouble();
            case QMetaType::QByteArray: {
                const QByteArray bytes = value.toByteArray();
                return records::Bytes{{bytes.begin(), bytes.end()}};
            }
            default: break;
        }
        return value.toString().toStdU16String();
    }

    StoreError errorOf(const QSqlError& error) const override {
        const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
        switch (error.nativeErrorCode().toInt() & PrimaryCode) {
            case 5:
            case 6:
                return {
                    Kind::Busy,
                    "Another program holds the database. Please save again in a moment; what is on the screen stays."};
            case 8: return readOnly();
            case 10:
                return {Kind::Full,
                        "The disk takes no more, or does not answer. Please look after it and save again; what is on "
                        "the screen stays."};
            case 13:
                return {Kind::Full, "The disk is full. Please make room and save again; what is on the screen stays."};
            case 14:
                return {
                    Kind::Wrong,
                    "The file cannot be opened. Please look whether its folder is still there and may be used; what "
                    "is on the screen stays."};
            case 19: return constraintError(text);
            case 26: return notADatabase();
            case 11: return {Kind::Wrong, "The database is damaged: " + text.toStdString()};
            default: return {Kind::Wrong, "The database says: " + text.toStdString()};
        }
    }

private:
    static StoreError constraintError(const QString& text) {
        // "UNIQUE constraint failed: orders.order no., orders.line"
        const QString place = text.section(QLatin1String("failed: "), 1).section(QLatin1String(", "), 0, 0);
        const QString column = place.section(QLatin1Char('.'), 1);
        if (text.contains(QLatin1String("NOT NULL"))) return valueMissing(column);
        if (text.contains(QLatin1String("UNIQUE"))) return valueTaken(column);
        return text.contains(QLatin1String("FOREIGN KEY")) ? referenceBroken() : ruleBroken(text);
    }
};

}  // namespace

std::unique_ptr<Dialect> makeSqliteDialect() { return std::make_unique<SqliteDialect>(); }

}  // namespace kel::qt
