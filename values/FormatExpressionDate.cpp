#include "values/FormatExpressionDate.h"

#include <algorithm>
#include <array>
#include <utility>

#include "values/CalendarDays.h"
#include "values/DecimalDigits.h"
#include "values/NumberFormat.h"

namespace kel {

namespace {

constexpr std::int32_t DaysPerWeek = 7;

/// Days of the week that come before this day of the year's week is over, counted from the week's first day.
constexpr std::int32_t daysIntoWeek(std::int32_t weekday, std::int32_t firstDay) {
    return (weekday - firstDay + DaysPerWeek) % DaysPerWeek;
}

/// Weeks of a year that begins so many days into a week. Negative days are in the year before.
std::int32_t weekOf(std::int32_t dayOfYear, std::int32_t newYear, WeekRule::FirstWeek rule) {
    const bool isFirst = rule == WeekRule::FirstWeek::WithFirstJanuary ||
                         (rule == WeekRule::FirstWeek::WithFourDays ? newYear <= 3 : newYear == 0);
    return (dayOfYear - 1 + newYear) / DaysPerWeek + (isFirst ? 1 : 0);
}

/// Whether a field shows a time, or a format of the region that might.
constexpr bool showsTime(DateField field) {
    return field >= DateField::Hour || field == DateField::ShortDate || field == DateField::LongDate;
}

bool hasHalfDay(DateFieldScanner scanner) {
    DateToken token;
    while (scanner.next(token)) {
        if (isHalfDay(token.field)) return true;
    }
    return false;
}

using DigitPair = std::array<char16_t, 2>;

/// "00" to "99".
constexpr std::array<DigitPair, 100> DigitPairs = [] {
    std::array<DigitPair, 100> pairs;
    for (unsigned number = 0; number < pairs.size(); ++number)
        pairs[number] = {static_cast<char16_t>(u'0' + number / 10), static_cast<char16_t>(u'0' + number % 10)};
    return pairs;
}();

/// Collects a text in a place of its own, so that most texts are made in one piece.
class TextPen {
public:
    TextPen() = default;
    TextPen(const TextPen&) = delete;
    TextPen& operator=(const TextPen&) = delete;

    /// Before anything is written: room for four digits.
    void makeRoom() {
        if (room() < MostDigitUnits) flush();
    }

    /// Where digits go; `putEnd` says where they end.
    char16_t* place() { return At_; }
    void putEnd(char16_t* end) { At_ = end; }

    void put(std::u16string_view text) {
        if (text.size() == 1)
            *At_++ = text.front();
        else
            putLong(text);
    }

    std::u16string take() {
        if (Written_.empty()) return {Place_.data(), At_};
        flush();
        return std::move(Written_);
    }

private:
    static constexpr std::size_t MostDigitUnits = 9;  ///< and a separator

    std::size_t room() const { return static_cast<std::size_t>(Place_.data() + Place_.size() - At_); }

    void putLong(std::u16string_view text) {
        if (text.size() <= room()) {
            At_ = std::copy(text.begin(), text.end(), At_);
            return;
        }
        flush();
        Written_ += text;
    }

    void flush() {
        Written_.append(Place_.data(), At_);
        At_ = Place_.data();
    }

    std::array<char16_t, 64> Place_;
    char16_t* At_ = Place_.data();
    std::u16string Written_;
};

}  // namespace

class DateSection::Printer {
public:
    Printer(Date date, const DateSection& section, const RegionalSettings& region, const WeekRule& weeks)
        : Date_(date),
          Day_(calendar::partsOf(calendar::wholeDays(date))),
          Time_(section.HasTime_ ? timePartsOf(date) : TimeParts{}),
          CountsToTwelve_(section.HasHalfDay_),
          HasPlainDigits_(region.ZeroDigit == U'0'),
          Region_(region),
          Weeks_(weeks) {}

    std::u16string take() { return Pen_.take(); }

    void print(DateField field, std::u16string_view text) {
        Pen_.makeRoom();
        switch (field) {
            case DateField::Literal: Pen_.put(text); break;
            case DateField::DateSeparator:
            case DateField::TimeSeparator: printSeparator(field); break;
            case DateField::Day: printNumber(Day_.day); break;
            case DateField::TwoDigitDay: printTwoDigits(Day_.day); break;
            case DateField::Month: printNumber(Day_.month); break;
            case DateField::TwoDigitMonth: printTwoDigits(Day_.month); break;
            case DateField::TwoDigitYear: printTwoDigits(Day_.year % 100); break;
            case DateField::Year: printNumber(Day_.year); break;
            case DateField::Hour: printNumber(shownHour()); break;
            case DateField::TwoDigitHour: printTwoDigits(shownHour()); break;
            case DateField::Minute: printNumber(Time_.minute); break;
            case DateField::TwoDigitMinute: printTwoDigits(Time_.minute); break;
            case DateField::Second: printNumber(Time_.second); break;
            case DateField::TwoDigitSecond: printTwoDigits(Time_.second); break;
            default: printMore(field, text);
        }
    }

    void printSeparator(DateField field) {
        Pen_.put(field == DateField::DateSeparator ? Region_.DateSeparator : Region_.TimeSeparator);
    }

private:
    /// Apart from the fields that every format has, which thus stay quick.
    void printMore(DateField field, std::u16string_view text) {
        switch (field) {
            case DateField::ShortWeekday: Pen_.put(Region_.AbbreviatedWeekdayNames[weekdayIndex()]); break;
            case DateField::Weekday: Pen_.put(Region_.WeekdayNames[weekdayIndex()]); break;
            case DateField::ShortMonthName: Pen_.put(Region_.AbbreviatedMonthNames[monthIndex()]); break;
            case DateField::MonthName: Pen_.put(Region_.MonthNames[monthIndex()]); break;
            case DateField::ShortDate: printRegional(Region_.ShortDateFormat); break;
            case DateField::LongDate: printRegional(Region_.LongDateFormat); break;
            case DateField::WeekdayNumber: printNumber(daysIntoWeek(weekdayOf(Date_), firstDay()) + 1); break;
            case DateField::WeekOfYear: printNumber(weekOfYear()); break;
            case DateField::Quarter: printNumber((Day_.month + 2) / 3); break;
            case DateField::DayOfYear: printNumber(dayOfYearOf(Date_)); break;
            case DateField::LongTime: printRegional(Region_.TimeFormat); break;
            case DateField::HalfDay: printHalfDay(text); break;
            case DateField::RegionalHalfDay: Pen_.put(isMorning() ? Region_.AmMarker : Region_.PmMarker); break;
            case DateField::General: printGeneral(); break;
            default: break;
        }
    }

    std::size_t weekdayIndex() const { return static_cast<std::size_t>(weekdayOf(Date_) - 1); }
    std::size_t monthIndex() const { return static_cast<std::size_t>(Day_.month - 1); }
    bool isMorning() const { return Time_.hour < 12; }

    std::int32_t shownHour() const {
        if (!CountsToTwelve_) return Time_.hour;
        return Time_.hour % 12 == 0 ? 12 : Time_.hour % 12;
    }

    std::int32_t firstDay() const { return Weeks_.firstDay == 0 ? Region_.FirstDayOfWeek : Weeks_.firstDay; }

    std::int32_t weekOfYear() const {
        const std::int32_t dayOfYear = dayOfYearOf(Date_);
        const std::int32_t intoWeek = daysIntoWeek(weekdayOf(Date_), firstDay());
        const auto newYearOf = [&](std::int32_t day) {
            return ((intoWeek - (day - 1)) % DaysPerWeek + DaysPerWeek) % DaysPerWeek;
        };
        const std::int32_t week = weekOf(dayOfYear, newYearOf(dayOfYear), Weeks_.firstWeek);
        const auto yearDays = [](std::int32_t year) {
            return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 366 : 365;
        };
        if (week == 0) {
            const std::int32_t inYearBefore = dayOfYear + yearDays(Day_.year - 1);
            return weekOf(inYearBefore, newYearOf(inYearBefore), Weeks_.firstWeek);
        }
        // The last days of a year may be in the next one's first week.
        const std::int32_t daysLeft = yearDays(Day_.year) - dayOfYear;
        const bool isNext = Weeks_.firstWeek == WeekRule::FirstWeek::WithFourDays && intoWeek + daysLeft < 3;
        return isNext ? 1 : week;
    }

    void printTwoDigits(std::int32_t number) {
        Pen_.putEnd(putTwoDigits(Pen_.place(), static_cast<std::uint32_t>(number)));
    }

    /// As many digits as it needs, four at most.
    void printNumber(std::int32_t number) {
        const auto value = static_cast<std::uint32_t>(number);
        char16_t* at = Pen_.place();
        if (value >= 1000)
            at = putTwoDigits(at, value / 100);
        else if (value >= 100)
            at = putDigit(at, Region_.ZeroDigit, value / 100);
        if (value >= 10)
            at = putTwoDigits(at, value % 100);
        else
            at = putDigit(at, Region_.ZeroDigit, value);
        Pen_.putEnd(at);
    }

    char16_t* putTwoDigits(char16_t* at, std::uint32_t number) const {
        if (HasPlainDigits_) return std::copy(DigitPairs[number].begin(), DigitPairs[number].end(), at);
        at = putDigit(at, Region_.ZeroDigit, number / 10);
        return putDigit(at, Region_.ZeroDigit, number % 10);
    }

    /// The half of "am/pm" or "a/p" that the time is in.
    void printHalfDay(std::u16string_view marker) {
        const std::size_t half = marker.size() / 2;
        Pen_.put(isMorning() ? marker.substr(0, half) : marker.substr(half + 1));
    }

    void printRegional(std::u16string_view expression) {
        DateFieldScanner scanner(expression, DateFieldScanner::Source::Region);
        const bool toTwelve = CountsToTwelve_;
        CountsToTwelve_ = hasHalfDay(scanner);
        DateToken token;
        while (scanner.next(token)) print(token.field, token.text);
        CountsToTwelve_ = toTwelve;
    }

    void printGeneral() {
        const bool hasDay = dayOf(Date_).Serial != 0;
        const bool hasTime = Time_ != TimeParts{};
        if (hasDay) printRegional(Region_.ShortDateFormat);
        if (hasDay && hasTime) Pen_.put(u" ");
        if (hasTime || !hasDay) printRegional(Region_.TimeFormat);
    }

    const Date Date_;
    const DateParts Day_;
    const TimeParts Time_;
    bool CountsToTwelve_;
    const bool HasPlainDigits_;
    const RegionalSettings& Region_;
    const WeekRule& Weeks_;
    TextPen Pen_;
};

DateSection::DateSection(std::u16string_view expression) {
    DateFieldScanner scanner(expression);
    for (DateToken token; scanner.next(token);) {
        const bool keepsText = token.field == DateField::Literal || token.field == DateField::HalfDay;
        const auto count = static_cast<std::uint32_t>(keepsText ? token.text.size() : 0);
        if (keepsText) Texts_ += token.text;
        const bool isOpen = !Steps_.empty() && Steps_.back().separator == DateField::Literal;
        if (isOpen && isSeparator(token.field))
            Steps_.back().separator = token.field;
        else if (isOpen && token.field == DateField::Literal && Steps_.back().field == DateField::Literal)
            Steps_.back().count += count;
        else
            Steps_.push_back({token.field, DateField::Literal, count});
        HasParts_ |= isPart(token.field);
        HasTime_ |= showsTime(token.field);
        HasHalfDay_ |= isHalfDay(token.field);
    }
}

std::u16string DateSection::text(Date date, const RegionalSettings& region, const WeekRule& weeks) const {
    Printer printer(date, *this, region, weeks);
    const char16_t* text = Texts_.data();
    for (const Step& step : Steps_) {
        printer.print(step.field, {text, step.count});
        if (step.separator != DateField::Literal) printer.printSeparator(step.separator);
        text += step.count;
    }
    return printer.take();
}

}  // namespace kel
