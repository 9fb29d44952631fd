#include "values/FormatExpressionDate.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "values/CalendarDays.h"
#include "values/DecimalDigits.h"
#include "values/NumberFormat.h"

namespace kel {

namespace {

using calendar::DaysPerWeek;
using detail::Clock;
using detail::DatePair;
using detail::DateStep;

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

/// Collects a text in a place of its own, so that most texts are made in one piece. Writers are given the place
/// where to go on, and give back the place after what they have written.
class TextPlace {
public:
    TextPlace() = default;
    TextPlace(const TextPlace&) = delete;
    TextPlace& operator=(const TextPlace&) = delete;

    char16_t* begin() { return Place_.data(); }

    /// A place with room for a number and one unit more.
    char16_t* withRoom(char16_t* at) { return room(at) < MostNumberUnits + 1 ? flush(at) : at; }

    /// Takes a place with room for two units, and leaves room for one.
    char16_t* put(char16_t* at, std::u16string_view text) {
        if (text.size() != 1) return putLong(at, text);
        *at = text.front();
        return at + 1;
    }

    /// Of a place, in the whole text.
    std::size_t offset(const char16_t* at) const {
        return Written_.size() + static_cast<std::size_t>(at - Place_.data());
    }

    std::u16string take(char16_t* end) {
        if (Written_.empty()) return {Place_.data(), end};
        flush(end);
        return std::move(Written_);
    }

private:
    static constexpr std::size_t MostNumberUnits = 8;

    std::size_t room(const char16_t* at) const { return static_cast<std::size_t>(Place_.data() + Place_.size() - at); }

    char16_t* putLong(char16_t* at, std::u16string_view text) {
        if (text.size() < room(at)) return std::copy(text.begin(), text.end(), at);
        at = flush(at);
        Written_ += text;
        return at;
    }

    char16_t* flush(char16_t* end) {
        Written_.append(Place_.data(), end);
        return begin();
    }

    std::array<char16_t, 64> Place_;
    std::u16string Written_;
};

DatePair pairOf(DateField field) {
    switch (field) {
        case DateField::Day:
        case DateField::TwoDigitDay: return DatePair::Day;
        case DateField::Month:
        case DateField::TwoDigitMonth: return DatePair::Month;
        case DateField::TwoDigitYear:
        case DateField::Year: return DatePair::YearOfCentury;
        case DateField::Hour:
        case DateField::TwoDigitHour: return DatePair::Hour;
        case DateField::Minute:
        case DateField::TwoDigitMinute: return DatePair::Minute;
        case DateField::Second:
        case DateField::TwoDigitSecond: return DatePair::Second;
        default: return DatePair::None;
    }
}

bool mayHaveOneDigit(DateField field) {
    return field == DateField::Day || field == DateField::Month || field == DateField::Hour ||
           field == DateField::Minute || field == DateField::Second;
}

/// Uses the steps that print a token.
template <class Use>
void forEachStep(const DateToken& token, const Use& use) {
    constexpr std::uint8_t Ten = 10;
    if (token.field == DateField::Year)
        use(DateStep{.field = token.field, .pair = DatePair::Century, .leastOfTwoDigits = Ten});
    const bool keepsText = token.field == DateField::Literal || token.field == DateField::HalfDay;
    use(DateStep{.field = token.field,
                 .pair = pairOf(token.field),
                 .leastOfTwoDigits = mayHaveOneDigit(token.field) ? Ten : std::uint8_t{0},
                 .textUnits = static_cast<std::uint32_t>(keepsText ? token.text.size() : 0)});
}

/// A date and time in the numbers that are shown of it.
class ShownDate {
public:
    ShownDate(Date date, const Clock& clock) : Date_(date) {
        const DateParts day = calendar::partsOf(calendar::wholeDays(date));
        const auto year = static_cast<std::uint32_t>(day.year);
        set(DatePair::Day, day.day);
        set(DatePair::Month, day.month);
        set(DatePair::Century, year / 100);
        set(DatePair::YearOfCentury, year % 100);
        if (!clock.isShown) return;
        Time_ = timePartsOf(date);
        set(DatePair::Minute, Time_.minute);
        set(DatePair::Second, Time_.second);
        countHours(clock.countsToTwelve);
    }

    void countHours(bool toTwelve) {
        CountsToTwelve_ = toTwelve;
        set(DatePair::Hour, toTwelve ? (Time_.hour + 11) % 12 + 1 : Time_.hour);
    }
    bool countsToTwelve() const { return CountsToTwelve_; }

    std::uint32_t pair(DatePair pair) const { return Pairs_[static_cast<std::size_t>(pair)]; }
    std::size_t monthIndex() const { return pair(DatePair::Month) - 1; }
    std::size_t weekdayIndex() const { return static_cast<std::size_t>(weekdayOf(Date_) - 1); }
    bool isMorning() const { return Time_.hour < 12; }
    bool hasDay() const { return dayOf(Date_).Serial != 0; }
    bool hasTime() const { return Time_ != TimeParts{}; }
    Date date() const { return Date_; }

private:
    template <class Number>
    void set(DatePair pair, Number number) {
        Pairs_[static_cast<std::size_t>(pair)] = static_cast<std::uint32_t>(number);
    }

    Date Date_;
    std::array<std::uint32_t, 7> Pairs_;
    TimeParts Time_;
    bool CountsToTwelve_ = false;
};

/// Of a text that is merely shown nobody asks where its fields stand.
enum class Noting : std::uint8_t { Nothing, Fields };

template <Noting Notes>
class Printer {
public:
    /// Where the fields come to stand is noted in `fields`.
    Printer(Date date, const Clock& clock, const RegionalSettings& region, const WeekRule& weeks,
            std::vector<ShownField>* fields = nullptr)
        : Date_(date, clock),
          HasPlainDigits_(region.ZeroDigit == U'0'),
          DateSeparator_(singleUnit(region.DateSeparator)),
          TimeSeparator_(singleUnit(region.TimeSeparator)),
          Region_(region),
          Weeks_(weeks),
          Fields_(fields) {}

    /// What the steps print; `text` is that of all of them.
    std::u16string print(std::span<const DateStep> steps, const char16_t* text) {
        char16_t* at = Place_.begin();
        for (const DateStep& step : steps) {
            at = Place_.withRoom(at);
            if (Notes == Noting::Nothing && step.pair != DatePair::None && HasPlainDigits_)
                at = printPlain(at, Date_.pair(step.pair), step.leastOfTwoDigits);
            else
                at = print(at, step, {text, step.textUnits});
            if (step.separator != DateField::Literal) at = printSeparator(at, step.separator);
            text += step.textUnits;
        }
        return Place_.take(at);
    }

private:
    static char16_t* printPlain(char16_t* at, std::uint32_t number, std::uint32_t leastOfTwoDigits) {
        const DigitPair& digits = DigitPairs[number];
        if (number >= leastOfTwoDigits) return std::copy(digits.begin(), digits.end(), at);
        *at = digits.back();
        return at + 1;
    }

    /// Three digits at most, two if it is not less than this.
    char16_t* printNumber(char16_t* at, std::uint32_t number, std::uint32_t leastOfTwoDigits = 10) const {
        if (number >= 100) at = putDigit(at, Region_.ZeroDigit, number / 100);
        if (number >= leastOfTwoDigits) at = putDigit(at, Region_.ZeroDigit, number / 10 % 10);
        return putDigit(at, Region_.ZeroDigit, number % 10);
    }

    /// One unit; 0 for another text.
    static char16_t singleUnit(std::u16string_view text) { return text.size() == 1 ? text.front() : u'\0'; }

    char16_t* printSeparator(char16_t* at, DateField field) {
        const bool isDate = field == DateField::DateSeparator;
        *at = isDate ? DateSeparator_ : TimeSeparator_;
        if (*at != 0) return at + 1;
        return Place_.put(at, isDate ? Region_.DateSeparator : Region_.TimeSeparator);
    }

    char16_t* print(char16_t* at, const DateStep& step, std::u16string_view text) {
        if constexpr (Notes == Noting::Nothing) {
            return printUnnoted(at, step, text);
        } else {
            const std::size_t start = Place_.offset(at);
            at = printUnnoted(at, step, text);
            note(step, start, Place_.offset(at));
            return at;
        }
    }

    void note(const DateStep& step, std::size_t start, std::size_t end) {
        if (!isPart(step.field) || isRegional(step.field)) return;
        if (step.pair == DatePair::YearOfCentury && step.field == DateField::Year)
            Fields_->back().end = end;  // the second half of the year
        else
            Fields_->push_back({step.field, start, end});
    }

    char16_t* printUnnoted(char16_t* at, const DateStep& step, std::u16string_view text) {
        if (step.pair != DatePair::None) return printNumber(at, Date_.pair(step.pair), step.leastOfTwoDigits);
        return printOther(at, step.field, text);
    }

    char16_t* printOther(char16_t* at, DateField field, std::u16string_view text) {
        switch (field) {
            case DateField::DateSeparator:
            case DateField::TimeSeparator: return printSeparator(at, field);
            case DateField::ShortDate: return printRegional(at, Region_.ShortDateFormat);
            case DateField::LongDate: return printRegional(at, Region_.LongDateFormat);
            case DateField::LongTime: return printRegional(at, Region_.TimeFormat);
            case DateField::General: return printGeneral(at);
            case DateField::WeekdayNumber:
                return printNumber(at,
                                   static_cast<std::uint32_t>(daysIntoWeek(weekdayOf(Date_.date()), firstDay()) + 1));
            case DateField::WeekOfYear: return printNumber(at, static_cast<std::uint32_t>(weekOfYear()));
            case DateField::Quarter: return printNumber(at, static_cast<std::uint32_t>(Date_.monthIndex() / 3 + 1));
            case DateField::DayOfYear: return printNumber(at, static_cast<std::uint32_t>(dayOfYearOf(Date_.date())));
            default: return Place_.put(at, wordFor(field, text));
        }
    }

    std::u16string_view wordFor(DateField field, std::u16string_view text) const {
        switch (field) {
            case DateField::ShortWeekday: return Region_.AbbreviatedWeekdayNames[Date_.weekdayIndex()];
            case DateField::Weekday: return Region_.WeekdayNames[Date_.weekdayIndex()];
            case DateField::ShortMonthName: return Region_.AbbreviatedMonthNames[Date_.monthIndex()];
            case DateField::MonthName: return Region_.MonthNames[Date_.monthIndex()];
            case DateField::HalfDay: return halfOf(text);
            case DateField::RegionalHalfDay: return Date_.isMorning() ? Region_.AmMarker : Region_.PmMarker;
            default: return text;
        }
    }

    std::int32_t firstDay() const { return Weeks_.firstDay == 0 ? Region_.FirstDayOfWeek : Weeks_.firstDay; }

    std::int32_t weekOfYear() const {
        const std::int32_t dayOfYear = dayOfYearOf(Date_.date());
        const std::int32_t intoWeek = daysIntoWeek(weekdayOf(Date_.date()), firstDay());
        const auto newYearOf = [&](std::int32_t day) {
            return ((intoWeek - (day - 1)) % DaysPerWeek + DaysPerWeek) % DaysPerWeek;
        };
        const std::int32_t week = weekOf(dayOfYear, newYearOf(dayOfYear), Weeks_.firstWeek);
        const std::int32_t year = datePartsOf(Date_.date()).year;
        const auto yearDays = [](std::int32_t of) {
            return of % 4 == 0 && (of % 100 != 0 || of % 400 == 0) ? 366 : 365;
        };
        if (week == 0) {
            const std::int32_t inYearBefore = dayOfYear + yearDays(year - 1);
            return weekOf(inYearBefore, newYearOf(inYearBefore), Weeks_.firstWeek);
        }
        // The last days of a year may be in the next one's first week.
        const std::int32_t daysLeft = yearDays(year) - dayOfYear;
        const bool isNext = Weeks_.firstWeek == WeekRule::FirstWeek::WithFourDays && intoWeek + daysLeft < 3;
        return isNext ? 1 : week;
    }

    /// The half of "am/pm" or "a/p" that the time is in.
    std::u16string_view halfOf(std::u16string_view marker) const {
        const std::size_t half = marker.size() / 2;
        return Date_.isMorning() ? marker.substr(0, half) : marker.substr(half + 1);
    }

    char16_t* printRegional(char16_t* at, std::u16string_view expression) {
        DateFieldScanner scanner(expression, DateFieldScanner::Source::Region);
        const bool toTwelve = Date_.countsToTwelve();
        Date_.countHours(hasHalfDay(scanner));
        DateToken token;
        while (scanner.next(token)) {
            forEachStep(token, [&](const DateStep& step) { at = print(Place_.withRoom(at), step, token.text); });
        }
        Date_.countHours(toTwelve);
        return at;
    }

    char16_t* printGeneral(char16_t* at) {
        const bool hasDay = Date_.hasDay(), hasTime = Date_.hasTime();
        if (hasDay) at = printRegional(at, Region_.ShortDateFormat);
        if (hasDay && hasTime) at = Place_.put(Place_.withRoom(at), u" ");
        if (hasTime || !hasDay) at = printRegional(at, Region_.TimeFormat);
        return at;
    }

    ShownDate Date_;
    const bool HasPlainDigits_;
    const char16_t DateSeparator_;
    const char16_t TimeSeparator_;
    const RegionalSettings& Region_;
    const WeekRule& Weeks_;
    std::vector<ShownField>* const Fields_;
    TextPlace Place_;
};

}  // namespace

DateSection::DateSection(std::u16string_view expression) {
    DateFieldScanner scanner(expression);
    for (DateToken token; scanner.next(token);) {
        forEachStep(token, [&](const DateStep& step) {
            append(step);
            Texts_ += token.text.substr(0, step.textUnits);
        });
        HasParts_ |= isPart(token.field);
        Clock_.isShown |= showsTime(token.field);
        Clock_.countsToTwelve |= isHalfDay(token.field);
    }
}

/// Literals in a row are one, and separators go with the step before.
void DateSection::append(const DateStep& step) {
    const bool isOpen = !Steps_.empty() && Steps_.back().separator == DateField::Literal;
    if (isOpen && isSeparator(step.field))
        Steps_.back().separator = step.field;
    else if (isOpen && step.field == DateField::Literal && Steps_.back().field == DateField::Literal)
        Steps_.back().textUnits += step.textUnits;
    else
        Steps_.push_back(step);
}

std::u16string DateSection::text(Date date, const RegionalSettings& region, const WeekRule& weeks) const {
    return Printer<Noting::Nothing>(date, Clock_, region, weeks).print(Steps_, Texts_.data());
}

std::vector<ShownField> DateSection::fields(Date date, const RegionalSettings& region, const WeekRule& weeks) const {
    std::vector<ShownField> fields;
    Printer<Noting::Fields>(date, Clock_, region, weeks, &fields).print(Steps_, Texts_.data());
    return fields;
}

}  // namespace kel
