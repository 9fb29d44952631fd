// Prints the table of built-in regions from Qt's locale data. RegionalSettings.cpp includes the result.

#include <algorithm>
#include <array>
#include <cstdio>
#include <QChar>
#include <QLocale>
#include <QString>
#include <QStringList>

#include "platform/qt/home/QtRegion.h"

namespace {

QStringList builtInRegions() {
    QStringList names = {
        "af-ZA", "ar-EG", "bg-BG", "cs-CZ", "da-DK", "de-AT", "de-CH", "de-DE", "el-GR", "en-AU",
        "en-CA", "en-GB", "en-IE", "en-IN", "en-US", "en-ZA", "es-ES", "es-MX", "et-EE", "fa-IR",
        "fi-FI", "fr-BE", "fr-CA", "fr-CH", "fr-FR", "he-IL", "hi-IN", "hr-HR", "hu-HU", "is-IS",
        "it-CH", "it-IT", "ja-JP", "ko-KR", "lt-LT", "lv-LV", "nb-NO", "nl-BE", "nl-NL", "pl-PL",
        "pt-BR", "pt-PT", "ro-RO", "ru-RU", "sk-SK", "sl-SI", "sv-SE", "tr-TR", "uk-UA", "zh-CN",
    };
    names.sort();
    return names;
}

/// Blanks other than the plain one and characters without a shape are written by number, so that they can be seen.
bool needsNumber(QChar unit) { return unit != u' ' && !unit.isSurrogate() && (unit.isSpace() || !unit.isPrint()); }

QString literal(const QString& text) {
    QString source = QStringLiteral("u\"");
    for (const QChar unit : text) {
        if (unit == u'"' || unit == u'\\') source += u'\\';
        if (needsNumber(unit)) {
            source += QStringLiteral("\\u%1").arg(static_cast<uint>(unit.unicode()), 4, 16, QChar(u'0'));
        } else {
            source += unit;
        }
    }
    return source + u'"';
}

QString literal(const std::u16string& text) { return literal(QString::fromStdU16String(text)); }

template <std::size_t Count>
QString literal(const std::array<std::u16string, Count>& names) {
    QStringList list;
    for (const std::u16string& name : names) list += QString::fromStdU16String(name);
    if (list.join(QString()).contains(u';')) qFatal("a name holds the character that separates names");
    return literal(list.join(u';'));
}

template <class... Texts>
QString row(const Texts&... texts) {
    return QStringList{literal(texts)...}.join(QStringLiteral(", "));
}

void printRegion(const kel::RegionalSettings& region) {
    const QStringList lines = {
        row(region.Name, region.DecimalSeparator, region.GroupSeparator, region.NegativeSign),
        QStringLiteral("0x%1, %2, %3, %4, %5")
            .arg(static_cast<uint>(region.ZeroDigit), 4, 16, QChar(u'0'))
            .arg(region.PrimaryGroup)
            .arg(region.SecondaryGroup)
            .arg(region.MinimumGroupingDigits)
            .arg(region.FirstDayOfWeek),
        row(region.ShortDateFormat, region.LongDateFormat, region.TimeFormat),
        row(region.DateSeparator, region.TimeSeparator, region.AmMarker, region.PmMarker),
        row(region.MonthNames),
        row(region.AbbreviatedMonthNames),
        row(region.StandaloneMonthNames),
        row(region.WeekdayNames),
        row(region.AbbreviatedWeekdayNames),
    };
    std::printf("    {%s},\n", qUtf8Printable(lines.join(QStringLiteral(",\n     "))));
}

}  // namespace

int main() {
    std::printf(
        "// Generated from the Unicode locale data of Qt %s; do not edit. tools/regions/CMakeLists.txt says how.\n",
        qVersion());
    std::printf("\nconstexpr RegionData Regions[] = {\n");
    for (const QString& name : builtInRegions()) printRegion(kel::qt::regionFromLocale(QLocale(name)));
    std::printf("};\n");
    return 0;
}
