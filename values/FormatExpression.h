#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "values/FormatExpressionDate.h"
#include "values/FormatExpressionNumber.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// The classic Basic format language: how a value is shown, written as a small text such as "#,##0.00".
///
/// LITERALS, in every kind of expression
///   "text"     the text between the quotes; without a closing quote, all that follows
///   \x         the character after the backslash
///   others     every character that has no meaning below prints itself: blanks, $, -, +, (, ) and so on
///
/// NUMBERS
///   0          a digit, or 0 where the number has none
///   #          a digit, or nothing where the number has none. A "#" between zeros counts as 0: "0#" shows
///              5 as 05.
///   .          the region's decimal separator, shown even when no digit follows. The places after it say
///              how many decimals there are: the number is rounded half away from zero on its shortest
///              text, and with no places after the point or no point, to a whole number. A second point
///              prints itself.
///   ,          between two places of the whole part: the whole part is grouped as the region does.
///              After the last place of the whole part, each one divides by a thousand: "#,##0,," shows
///              millions. Elsewhere it prints itself.
///   %          multiplies by a hundred, each of them, and prints itself
///   E+0 e+0    the number is shown as so many whole digits as there are places for, times a power of ten;
///   E-0 e-0    the zeros are the least digits of the power. With + it always has a sign, with - only a
///              minus. There must be a place before, and one or more after the sign.
///
///   Whole digits for which there is no place print at the first one, so none is ever cut; literals
///   between places stay where they are: "00-00" shows 12345 as 123-45. Digits and the minus are the
///   region's own; a minus stands in front of everything.
///
/// DATES AND TIMES, in any case of letters
///   d dd       day, plain and with two digits
///   ddd dddd   weekday, short and in full; aaaa is the same as dddd
///   ddddd      the region's short date; dddddd its long date
///   m mm       month, plain and with two digits. When the part shown before it is hours, minutes: "hh:mm:ss"
///              shows 10:15:30, but "mm:ss" a month and seconds.
///   mmm mmmm   name of the month, short and in full; oooo is the same as mmmm
///   yy yyyy    year, its last two digits and in full. Years below 1000 have three digits.
///   y          day of the year, 1 to 366
///   q          quarter
///   w          day of the week, 1 for the first one; ww: week of the year
///   h hh       hours, plain and with two digits
///   n nn s ss  minutes and seconds, in the same way
///   ttttt      the region's long time
///   AM/PM      one half or the other of it, as it is written here; a/p likewise. AMPM shows the region's own
///              markers. With any of them in the expression all its hours count to 12.
///   c          short date and long time, but only the date of midnight, and only the time on day 0
///   / :        the region's date and time separators
///
///   Of more letters in a row than there are here, as many as make sense are taken first. Digits are the
///   region's own. Places for numbers print themselves, unless the expression shows nothing of a date and has
///   places: then the day serial is shown as a number.
///
/// SECTIONS are separated by semicolons. Dates are shown by the first one. For numbers there may be
///   one        all numbers
///   two        positive numbers and zero; negative ones, without their sign
///   three      positive; negative; zero, also what rounds to zero in its own section
///   four       the same, and Null. Null prints nothing without this section.
///   An empty section is shown as the first one is, with a sign again. When the first is empty, what falls
///   to it prints nothing. Further sections have no effect.
///
/// NAMED FORMATS, in any case of letters, alone in the expression
///   General Number   the shortest text that reads back; the empty expression does the same
///   Fixed            0.00
///   Standard         #,##0.00
///   Currency         #,##0.00;(#,##0.00) -- regional settings name no currency, so none is shown
///   Percent          0.00%
///   Scientific       0.00E+00
///   Yes/No           No for zero, else Yes; True/False and On/Off in the same way
///   General Date     c; for a date, the empty expression does the same
///   Long Date        dddddd
///   Medium Date      dd-mmm-yy
///   Short Date       ddddd
///   Long Time        ttttt
///   Medium Time      hh:nn AM/PM
///   Short Time       hh:nn
///   A number shown by one of these names is a day serial.
namespace kel {

/// A format expression, read once and then used for any number of values. Every text is a format
/// expression: what makes no sense prints itself.
class FormatExpression {
public:
    explicit FormatExpression(std::u16string_view expression);

    /// `number` is made finite first.
    std::u16string format(double number, const RegionalSettings& region) const;
    std::u16string formatNull(const RegionalSettings& region) const;

    /// Days outside the calendar count as its nearest end.
    std::u16string format(Date date, const RegionalSettings& region, const WeekRule& weeks = {}) const;

    /// Where the fields of the date stand in that text, in order. A number has none.
    std::vector<ShownField> fields(Date date, const RegionalSettings& region, const WeekRule& weeks = {}) const;

private:
    enum SectionPlace : std::size_t { Positive, Negative, Zero, Nothing, SectionPlaces };

    bool has(SectionPlace place) const { return !Sections_[place].isEmpty(); }
    bool showsSerial() const { return !Date_.hasParts() && Sections_[Positive].hasPlaces(); }

    bool IsGeneral_ = false;
    bool IsDateName_ = false;
    DateSection Date_;
    std::array<NumberSection, SectionPlaces> Sections_;
};

}  // namespace kel
