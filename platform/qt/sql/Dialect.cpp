#include "platform/qt/sql/Dialect.h"

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

using records::StoreError;
using Kind = StoreError::Kind;

QString Dialect::quoted(std::u16string_view name) {
    QString text = toQString(name);
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString Dialect::typeName(const records::Column& column) const {
    using records::ColumnType;
    switch (column.type) {
        case ColumnType::Integer: return wholeNumberType();
        case ColumnType::Real: return QStringLiteral("DOUBLE PRECISION");
        case ColumnType::Decimal: return QStringLiteral("DECIMAL(30,%1)").arg(column.decimals);
        case ColumnType::Date: return QStringLiteral("DATE");
        case ColumnType::Time: return QStringLiteral("TIME");
        case ColumnType::Moment: return QStringLiteral("TIMESTAMP");
        case ColumnType::Truth: return QStringLiteral("BOOLEAN");
        default: return QStringLiteral("TEXT");
    }
}

StoreError Dialect::valueMissing(const QString& column) {
    return {Kind::Constraint, "a value is needed here.", column.toStdU16String()};
}

StoreError Dialect::valueTaken(const QString& column) {
    return {Kind::Constraint, "another record has the same value already.", column.toStdU16String()};
}

StoreError Dialect::referenceBroken() {
    return {Kind::Constraint, "Another table does not have what this record refers to, or refers to this record."};
}

StoreError Dialect::ruleBroken(const QString& text) {
    return {Kind::Constraint, "A rule of the database is not kept: " + text.toStdString()};
}

StoreError Dialect::readOnly() {
    return {Kind::ReadOnly,
            "The database may not be written. Please have it allowed and save again; what is on the screen stays."};
}

}  // namespace kel::qt
