#pragma once

#include <QVariant>

#include "platform/qt/base/VariantBridge.h"

/// The value of a field as data is bound to it: by a QDataWidgetMapper, an item delegate, a wizard. Databases hand over
/// texts and nulls as well as values of the field's own type, and what they are not is none rather than what the field
/// held before.
namespace kel::qt {

/// None is a null of the type, so that a database keeps its null.
template <class T>
QVariant toBound(const Variant& value, T (*convert)(const Variant&)) {
    const bool isNone = std::holds_alternative<Empty>(value) || std::holds_alternative<Null>(value);
    return isNone ? QVariant(QMetaType::fromType<T>()) : QVariant::fromValue(convert(value));
}

/// A text is a date as databases write it ("2013-03-15"), or else as the region does.
Variant dateFromBound(const QVariant& value);
/// The same for a time: "18:30", "18:30:15.250".
Variant timeFromBound(const QVariant& value);
/// A text has a decimal point; what is no number is 0.
Variant numberFromBound(const QVariant& value);
inline Variant countFromBound(const QVariant& value) { return fromInteger(value.toInt()); }
inline Variant flagFromBound(const QVariant& value) { return value.toBool(); }
inline Variant textFromBound(const QVariant& value) { return fromText(value.toString()); }
inline Variant linesFromBound(const QVariant& value, bool multiLine) { return fromLines(value.toString(), multiLine); }

}  // namespace kel::qt
