#include "platform/qt/home/QtRegion.h"

#include <algorithm>
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <vector>

namespace kel::qt {

namespace {

/// One piece of a Qt date or time format: a field like "MM" or the text between two fields.
struct Piece {
    QChar field;  ///< null: text
    QString text;

    bool isField() const { return !field.isNull(); }
};

/// In the format language this prints the region's own marker.
constexpr char16_t MarkerField[] = u"AMPM";
constexpr char16_t DefaultDateSeparator[] = u"/";
constexpr char16_t DefaultTimeSeparator[] = u":";

void appendText(std::vector<Piece>& pieces, const QString& text) {
    if (pieces.empty() || pieces.back().isField()) pieces.push_back({});
    pieces.back().text += text;
}

/// Text may stand between quotes; a doubled quote is a quote, inside them or alone.
std::vector<Piece> piecesOf(const QString& format, const QString& fieldLetters) {
    const QRegularExpression parts(QStringLiteral("'((?:[^']|'')*)'|([%1])\\2*(?:(?<=[Aa])[Pp])?|.").arg(fieldLetters));
    std::vector<Piece> pieces;
    for (const QRegularExpressionMatch& part : parts.globalMatch(format)) {
        const QString quoted = part.captured(1).replace(QStringLiteral("''"), QStringLiteral("'"));
        if (part.hasCaptured(2))
            pieces.push_back({part.captured(2) == u'A' ? QChar(u'a') : part.captured(2).front(), part.captured()});
        else if (part.hasCaptured(1))
            appendText(pieces, quoted.isEmpty() ? QStringLiteral("'") : quoted);
        else
            appendText(pieces, part.captured());
    }
    return pieces;
}

std::vector<Piece> datePiecesOf(const QLocale& locale, QLocale::FormatType type) {
    return piecesOf(locale.dateFormat(type), QStringLiteral("dMy"));
}

std::vector<Piece> timePiecesOf(const QLocale& locale, QLocale::FormatType type) {
    return piecesOf(locale.timeFormat(type), QStringLiteral("hHmsztAa"));
}

bool hasLetters(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isLetter() || unit.isSurrogate(); });
}

/// Text as it stands in a format expression: blanks and commas are plain, all else is protected.
QString protectedText(const QString& text) {
    QString expression;
    for (const QRegularExpressionMatch& part : QRegularExpression(QStringLiteral("[ ,]|[^ ,]+")).globalMatch(text)) {
        const QString run = part.captured();
        if (run == u' ' || run == u',')
            expression += run;
        else if (run.size() > 1 && !run.contains(u'"'))
            expression += u'"' + run + u'"';
        else
            for (const QChar unit : run) expression += QStringLiteral("\\") + unit;
    }
    return expression;
}

QString dateField(const Piece& piece) {
    if (piece.field == u'y') return QStringLiteral("yyyy");
    return piece.text.toLower();
}

/// The text between the first two fields when it is a separator: more than a blank, and no word.
QString separatorIn(const std::vector<Piece>& pieces) {
    const auto first = std::find_if(pieces.begin(), pieces.end(), [](const Piece& piece) { return piece.isField(); });
    if (pieces.end() - first < 3 || first[1].isField() || hasLetters(first[1].text)) return {};
    if (first[1].text.trimmed().isEmpty()) return {};
    return first[1].text;
}

QString shortDate(const std::vector<Piece>& pieces, const QString& separator) {
    QString expression;
    for (std::size_t at = 0; at < pieces.size(); ++at) {
        const Piece& piece = pieces[at];
        const bool isBetween = at > 0 && at + 1 < pieces.size();
        if (piece.isField()) {
            expression += dateField(piece);
        } else if (isBetween && piece.text == separator) {
            expression += u'/';
        } else if (isBetween || !hasLetters(piece.text)) {
            expression += protectedText(piece.text);
        }
    }
    return expression;
}

QString longDate(const std::vector<Piece>& pieces) {
    QString expression;
    for (const Piece& piece : pieces) expression += piece.isField() ? dateField(piece) : protectedText(piece.text);
    return expression;
}

/// The punctuation between hours and minutes, blanks aside; empty when there is a word or nothing.
QString timeSeparatorIn(const std::vector<Piece>& pieces) {
    for (std::size_t at = 2; at < pieces.size(); ++at) {
        const bool isMinute = pieces[at].field == u'm';
        if (isMinute && !hasLetters(pieces[at - 1].text)) return pieces[at - 1].text.trimmed();
    }
    return {};
}

QString timeSeparatorOf(const QLocale& locale) {
    for (const QLocale::FormatType type : {QLocale::ShortFormat, QLocale::LongFormat}) {
        QString separator = timeSeparatorIn(timePiecesOf(locale, type));
        if (!separator.isEmpty()) return separator;
    }
    return QString::fromUtf16(DefaultTimeSeparator);
}

/// Hours as the short time writes them, then minutes and seconds, and the marker on its side.
std::u16string timeExpression(const std::vector<Piece>& pieces) {
    const auto find = [&pieces](QChar letter) {
        return std::find_if(pieces.begin(), pieces.end(), [letter](const Piece& piece) {
            return piece.isField() && piece.field.toLower() == letter;
        });
    };
    const auto hour = find(u'h');
    const auto marker = find(u'a');
    std::u16string digits = hour == pieces.end() ? u"h" : hour->text.toLower().toStdU16String();
    digits += u":nn:ss";
    if (marker == pieces.end()) return digits;
    return marker < hour ? std::u16string(MarkerField) + u' ' + digits : digits + u' ' + MarkerField;
}

/// Qt says how it groups only by doing so.
void readGrouping(QLocale locale, RegionalSettings& region) {
    constexpr double Long = 123456789012.0;
    constexpr double FourDigits = 1234.0;
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    const QString separator = locale.groupSeparator();
    const QStringList groups = locale.toString(Long, 'f', 0).split(separator);
    region.PrimaryGroup = region.SecondaryGroup = 0;
    region.MinimumGroupingDigits = 1;
    if (separator.isEmpty() || groups.size() < 3) return;
    const auto digitsOf = [&](const QString& group) {
        return static_cast<std::uint8_t>(group.size() / locale.zeroDigit().size());
    };
    region.PrimaryGroup = digitsOf(groups.last());
    region.SecondaryGroup = digitsOf(groups[groups.size() - 2]);
    const bool leavesFour = !locale.toString(FourDigits, 'f', 0).contains(separator);
    if (leavesFour && region.PrimaryGroup == 3) region.MinimumGroupingDigits = 2;
}

char32_t codePointOf(const QString& text) {
    const auto points = text.toUcs4();
    return points.isEmpty() ? U'0' : static_cast<char32_t>(points.front());
}

void readNumbers(const QLocale& locale, RegionalSettings& region) {
    region.DecimalSeparator = locale.decimalPoint().toStdU16String();
    region.GroupSeparator = locale.groupSeparator().toStdU16String();
    region.NegativeSign = locale.negativeSign().toStdU16String();
    region.ZeroDigit = zeroOfTenDigits(codePointOf(locale.zeroDigit()));
    readGrouping(locale, region);
}

void readFormats(const QLocale& locale, RegionalSettings& region) {
    const std::vector<Piece> date = datePiecesOf(locale, QLocale::ShortFormat);
    const QString separator = separatorIn(date);
    region.ShortDateFormat = shortDate(date, separator).toStdU16String();
    region.DateSeparator = separator.isEmpty() ? DefaultDateSeparator : separator.toStdU16String();
    region.LongDateFormat = longDate(datePiecesOf(locale, QLocale::LongFormat)).toStdU16String();
    region.TimeFormat = timeExpression(timePiecesOf(locale, QLocale::ShortFormat));
    region.TimeSeparator = timeSeparatorOf(locale).toStdU16String();
    region.AmMarker = locale.amText().toStdU16String();
    region.PmMarker = locale.pmText().toStdU16String();
}

void readNames(const QLocale& locale, RegionalSettings& region) {
    for (int month = 0; month < 12; ++month) {
        const auto at = static_cast<std::size_t>(month);
        region.MonthNames[at] = locale.monthName(month + 1, QLocale::LongFormat).toStdU16String();
        region.AbbreviatedMonthNames[at] = locale.monthName(month + 1, QLocale::ShortFormat).toStdU16String();
        region.StandaloneMonthNames[at] = locale.standaloneMonthName(month + 1, QLocale::LongFormat).toStdU16String();
    }
    for (int day = 0; day < 7; ++day) {
        const auto at = static_cast<std::size_t>(day);
        const int qtDay = day == 0 ? Qt::Sunday : day;
        region.WeekdayNames[at] = locale.dayName(qtDay, QLocale::LongFormat).toStdU16String();
        region.AbbreviatedWeekdayNames[at] = locale.dayName(qtDay, QLocale::ShortFormat).toStdU16String();
    }
    region.FirstDayOfWeek = static_cast<std::uint8_t>(locale.firstDayOfWeek() % 7 + 1);
}

}  // namespace

RegionalSettings regionFromLocale(const QLocale& locale) {
    RegionalSettings region;
    region.Name = locale.name().replace(u'_', u'-').toStdU16String();
    readNumbers(locale, region);
    readFormats(locale, region);
    readNames(locale, region);
    return region;
}

}  // namespace kel::qt
