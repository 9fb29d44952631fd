#include "platform/qt/base/VariantBridge.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/qt/base/TextBridge.h"
#include "values/Calendar.h"

namespace kel::qt {

namespace {

template <class T>
T valueOr(const Variant& value, T otherwise) {
    const T* const held = std::get_if<T>(&value);
    return held != nullptr ? *held : otherwise;
}

QDateTime momentOf(Date date) {
    const DateParts day = datePartsOf(date);
    const TimeParts time = timePartsOf(date);
    return {QDate(day.year, day.month, day.day), QTime(time.hour, time.minute, time.second)};
}

/// A control counts in seconds.
double fractionOf(QTime time) {
    const int seconds = (time.msecsSinceStartOfDay() + 500) / 1000;
    return static_cast<double>(std::min(seconds, SecondsPerDay - 1)) / SecondsPerDay;
}

Date dayOf(QDate date) { return {static_cast<double>(QDate(1899, 12, 30).daysTo(date))}; }

}  // namespace

QString toText(const Variant& value) {
    const auto* const text = std::get_if<std::u16string>(&value);
    return text != nullptr ? toQString(*text) : QString();
}

bool toFlag(const Variant& value) { return valueOr(value, false); }

int toInteger(const Variant& value) {
    if (const auto* const small = std::get_if<std::int16_t>(&value)) return *small;
    return valueOr<std::int32_t>(value, 0);
}

double toNumber(const Variant& value) { return valueOr(value, 0.0); }

QDateTime toDateTime(const Variant& value) { return momentOf(valueOr(value, Date{})); }

QDate toDate(const Variant& value) {
    const Date* const date = std::get_if<Date>(&value);
    return date != nullptr ? momentOf(*date).date() : QDate();
}

QTime toTime(const Variant& value) {
    const Date* const date = std::get_if<Date>(&value);
    return date != nullptr ? momentOf(*date).time() : QTime();
}

QString toLines(const Variant& value) { return toText(value).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); }

QStringList toTexts(const Variant& value) {
    QStringList texts;
    if (const auto* const array = std::get_if<StringArray>(&value))
        for (const std::u16string& text : *array) texts.append(toQString(text));
    return texts;
}

QVariant toQVariant(const Variant& value) {
    return std::visit(
        [&value](const auto& held) -> QVariant {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Null>)
                return QVariant::fromValue(nullptr);
            else if constexpr (std::is_same_v<Held, bool> || std::is_same_v<Held, double>)
                return held;
            else if constexpr (std::is_same_v<Held, std::int16_t> || std::is_same_v<Held, std::int32_t>)
                return int{held};
            else if constexpr (std::is_same_v<Held, Date>)
                return momentOf(held);
            else if constexpr (std::is_same_v<Held, std::u16string>)
                return toQString(held);
            else if constexpr (std::is_same_v<Held, StringArray>)
                return toTexts(value);
            else
                return {};
        },
        value);
}

Variant fromText(const QString& text) { return std::u16string(viewOf(text)); }

Variant fromShort(int number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(number, Limits::min(), Limits::max()));
}

Variant fromDateTime(const QDateTime& moment) {
    if (!moment.isValid()) return Null{};
    return withTime(dayOf(moment.date()), fractionOf(moment.time()));
}

Variant fromDate(QDate date) { return date.isValid() ? Variant(dayOf(date)) : Variant(Null{}); }

Variant fromTime(QTime time) { return time.isValid() ? Variant(Date{fractionOf(time)}) : Variant(Null{}); }

Variant fromLines(const QString& text, bool multiLine) {
    if (!multiLine || !text.contains(u'\n')) return fromText(text);
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QStringLiteral("\r\n"));
    return fromText(lines);
}

Variant fromTexts(const QStringList& texts) {
    StringArray array;
    array.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts) array.emplace_back(viewOf(text));
    return array;
}

Variant fromQVariant(const QVariant& value) {
    if (value.isNull()) return Null{};
    switch (value.typeId()) {
        case QMetaType::Bool: return value.toBool();
        case QMetaType::Short: return static_cast<std::int16_t>(value.toInt());
        case QMetaType::Int: return value.toInt();
        case QMetaType::QDate: return fromDate(value.toDate());
        case QMetaType::QDateTime: return fromDateTime(value.toDateTime());
        case QMetaType::QTime: return fromTime(value.toTime());
        case QMetaType::QStringList: return fromTexts(value.toStringList());
        case QMetaType::QString: return fromText(value.toString());
        default: break;
    }
    if (value.canConvert<double>()) return value.toDouble();
    return fromText(value.toString());
}

}  // namespace kel::qt
