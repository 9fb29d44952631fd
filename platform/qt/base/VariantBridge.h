#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "values/Variant.h"

/// Values between Qt and the controls. A date is a QDateTime, to the second, local as it stands. Empty is an invalid
/// QVariant and Null one that holds nullptr.
namespace kel::qt {

QString toText(const Variant& value);
bool toFlag(const Variant& value);
int toInteger(const Variant& value);
double toNumber(const Variant& value);
QDateTime toDateTime(const Variant& value);
QStringList toTexts(const Variant& value);
QVariant toQVariant(const Variant& value);

Variant fromText(const QString& text);
inline Variant fromFlag(bool flag) { return flag; }
/// Numbers beyond 16 bits become the nearest that fits.
Variant fromShort(int number);
inline Variant fromInteger(int number) { return std::int32_t{number}; }
inline Variant fromNumber(double number) { return number; }
Variant fromDateTime(const QDateTime& moment);
Variant fromTexts(const QStringList& texts);
Variant fromQVariant(const QVariant& value);

}  // namespace kel::qt
