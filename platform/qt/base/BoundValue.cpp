#include "platform/qt/base/BoundValue.h"

namespace kel::qt {

namespace {

QDateTime momentIn(const QString& text) {
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (moment.isValid()) return moment;
    QString joined = text;
    return QDateTime::fromString(joined.replace(u' ', u'T'), Qt::ISODateWithMs);
}

QDate dateIn(const QString& text) {
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() && text.size() <= 10 ? date : momentIn(text).date();
}

QTime timeIn(const QString& text) {
    const QTime time = QTime::fromString(text, Qt::ISODateWithMs);
    return time.isValid() ? time : momentIn(text).time();
}

}  // namespace

Variant dateFromBound(const QVariant& value) {
    if (value.isNull()) return Null{};
    switch (value.typeId()) {
        case QMetaType::QDate:
        case QMetaType::QDateTime: return fromDate(value.toDate());
        case QMetaType::QString: {
            const QDate date = dateIn(value.toString());
            return date.isValid() ? fromDate(date) : fromText(value.toString());
        }
        default: return fromQVariant(value);
    }
}

Variant timeFromBound(const QVariant& value) {
    if (value.isNull()) return Null{};
    switch (value.typeId()) {
        case QMetaType::QTime:
        case QMetaType::QDateTime: return fromTime(value.toTime());
        case QMetaType::QString: {
            const QTime time = timeIn(value.toString());
            return time.isValid() ? fromTime(time) : fromText(value.toString());
        }
        default: return fromQVariant(value);
    }
}

Variant numberFromBound(const QVariant& value) { return value.toDouble(); }

}  // namespace kel::qt
