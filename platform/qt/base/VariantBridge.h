#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "values/Variant.h"

/// Values between Qt and the controls. A moment is a QDateTime, to the second, local as it stands. Empty is an invalid
/// QVariant and Null one that holds nullptr; what comes from Qt as no value, be it invalid or null, is Null.
namespace kel::qt {

QString toText(const Variant& value);
bool toFlag(const Variant& value);
int toInteger(const Variant& value);
double toNumber(const Variant& value);
QDateTime toDateTime(const Variant& value);
/// Invalid for what is no date.
QDate toDate(const Variant& value);
/// To the second; invalid for what is no time.
QTime toTime(const Variant& value);
/// A line ends as Qt has it, in a line feed alone.
QString toLines(const Variant& value);
template <class Enum>
Enum toEnum(const Variant& value) {
    return static_cast<Enum>(toInteger(value));
}
QStringList toTexts(const Variant& value);
QVariant toQVariant(const Variant& value);

Variant fromText(const QString& text);
inline Variant fromFlag(bool flag) { return flag; }
/// Numbers beyond 16 bits become the nearest that fits.
Variant fromShort(int number);
inline Variant fromInteger(int number) { return std::int32_t{number}; }
inline Variant fromNumber(double number) { return number; }
Variant fromDateTime(const QDateTime& moment);
Variant fromDate(QDate date);
/// To the nearest second, of the same day.
Variant fromTime(QTime time);
/// A text of several lines ends them as the controls do.
Variant fromLines(const QString& text, bool multiLine);
template <class Enum>
Variant fromEnum(Enum value) {
    return fromInteger(static_cast<int>(value));
}
Variant fromTexts(const QStringList& texts);
Variant fromQVariant(const QVariant& value);

}  // namespace kel::qt
