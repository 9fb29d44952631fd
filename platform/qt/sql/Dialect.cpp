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
