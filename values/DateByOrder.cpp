#include "values/DateByOrder.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "values/DateWords.h"
#include "values/FormatExpressionFields.h"
#include "values/Words.h"

namespace kel {

namespace {

using Parts = std::span<const DatePart>;
using PartOrder = std::array<DatePart, 3>;

constexpr PartOrder DayFirst = {DatePart::Day, DatePart::Month, DatePart::Year};
constexpr PartOrder YearFirst = {DatePart::Year, DatePart::Month, DatePart::Day};
constexpr std::size_t PartDigits = 2;
constexpr std::size_t YearDigits = 4;

/// A number with more digits than a day or month is a year where only one of two can be.
constexpr bool isLong(const DigitGroup& group) { return group.digits > PartDigits; }

std::optional<DatePart> partOf(DateField field) {
    switch (field) {
        case DateField::Day:
        case DateField::TwoDigitDay: return DatePart::Day;
        case DateField::Month:
        case DateField::TwoDigitMonth:
        case DateField::ShortMonthName:
        case DateField::MonthName: return DatePart::Month;
        case DateField::TwoDigitYear:
        case DateField::Year: return DatePart::Year;
        default: return std::nullopt;
    }
}

/// The parts that a format shows, each once, in order.
class ShownParts {
public:
    ShownParts(const DateFormat& format, const RegionalSettings& region) {
        for (const DateFormat::Step& step : format.steps()) add(step.field, region);
    }
    explicit ShownParts(std::u16string_view regionalFormat) { addRegional(regionalFormat); }

    Parts all() const { return {Parts_.data(), Count_}; }
    bool areAll() const { return Count_ == Parts_.size(); }
    /// All three.
    const PartOrder& order() const { return Parts_; }
    bool has(DatePart part) const { return std::find(all().begin(), all().end(), part) != all().end(); }
    bool beginWithYear() const { return Count_ != 0 && Parts_.front() == DatePart::Year; }
    bool areMonthAndYear() const { return Count_ == 2 && !has(DatePart::Day); }

private:
    void add(DateField field, const RegionalSettings& region) {
        if (field == DateField::ShortDate || field == DateField::General)
            addRegional(region.ShortDateFormat);
        else if (field == DateField::LongDate)
            addRegional(region.LongDateFormat);
        else
            add(field);
    }

    void addRegional(std::u16string_view format) {
        DateFieldScanner scanner(format, DateFieldScanner::Source::Region);
        for (DateToken token; !areAll() && scanner.next(token);) add(token.field);
    }

    void add(DateField field) {
        if (areAll()) return;
        if (const auto part = partOf(field); part && !has(*part)) Parts_[Count_++] = *part;
    }

    PartOrder Parts_{};
    std::size_t Count_ = 0;
};

/// `order` with the shown parts in the places that they have in it, but in the order in which they are shown.
PartOrder reordered(PartOrder order, const ShownParts& shown) {
    auto next = shown.all().begin();
    for (DatePart& part : order) {
        if (shown.has(part)) part = *next++;
    }
    return order;
}

WrittenDate split(const DigitGroup& group, Parts order) {
    WrittenDate written;
    std::int32_t rest = group.value;
    for (auto part = order.rbegin(); part != order.rend(); ++part) {
        const std::size_t digits =
            *part == DatePart::Year ? group.digits - PartDigits * (order.size() - 1) : PartDigits;
        std::int32_t limit = 1;
        for (std::size_t digit = 0; digit < digits; ++digit) limit *= 10;
        written.put(*part, {rest % limit, digits});
        rest /= limit;
    }
    return written;
}

PartOrder orderIn(const RegionalSettings& region) { return reordered(DayFirst, ShownParts(region.ShortDateFormat)); }

/// The order of numbers in a field. A day that the format does not show goes beside the month.
PartOrder orderOf(const ShownParts& shown, const RegionalSettings& region) {
    if (shown.areAll()) return shown.order();
    PartOrder regional = orderIn(region);
    if (shown.areMonthAndYear()) {
        if (shown.beginWithYear()) return YearFirst;
        std::stable_partition(regional.begin(), regional.end(), [](DatePart part) { return part != DatePart::Year; });
        return regional;
    }
    return reordered(regional, shown);
}

/// What the numbers of a date are for.
class NumberRoles {
public:
    NumberRoles(const DateFormat& format, const RegionalSettings& region)
        : Region_(region), Shown_(format, region), Order_(orderOf(Shown_, region)) {}

    /// False when they can be no date; `hasMonth` where the month is named.
    bool put(std::span<const DigitGroup> numbers, bool hasMonth, WrittenDate& written) const {
        if (hasMonth) return putBesideMonth(numbers, written);
        switch (numbers.size()) {
            case 1: return putAlone(numbers.front(), written);
            case 2:
                if (isLong(numbers[0])) return putAll(numbers, Parts(YearFirst).first(2), written);
                if (isLong(numbers[1])) return putAll(numbers, Parts(DayFirst).last(2), written);
                return putAll(numbers, pair().all(), written);
            case 3: return putAll(numbers, orderOfThree(numbers), written);
            default: return false;
        }
    }

private:
    class Pair {
    public:
        Pair(DatePart first, DatePart second) : Parts_{first, second} {}
        Parts all() const { return Parts_; }

    private:
        std::array<DatePart, 2> Parts_;
    };

    /// A year of four digits, first or last, tells the order where it is not where the format has it.
    PartOrder orderOfThree(std::span<const DigitGroup> numbers) const {
        const bool isYearFirst = numbers.front().digits == YearDigits;
        if (!Shown_.beginWithYear()) return isYearFirst ? YearFirst : Order_;
        return !isYearFirst && numbers.back().digits == YearDigits ? orderIn(Region_) : Order_;
    }

    bool isBefore(DatePart left, DatePart right) const {
        return std::find(Order_.begin(), Order_.end(), left) < std::find(Order_.begin(), Order_.end(), right);
    }

    Pair ordered(DatePart left, DatePart right) const {
        return isBefore(left, right) ? Pair(left, right) : Pair(right, left);
    }

    /// Two numbers are day and month, or month and year where the format shows no day.
    Pair pair() const { return ordered(DatePart::Month, Shown_.areMonthAndYear() ? DatePart::Year : DatePart::Day); }

    /// One number is the day, or what comes first of the other parts where the format shows no day.
    DatePart single() const {
        if (Shown_.has(DatePart::Day) || Shown_.all().empty()) return DatePart::Day;
        return Shown_.has(DatePart::Month) ? DatePart::Month : DatePart::Year;
    }

    static bool putAll(std::span<const DigitGroup> numbers, Parts parts, WrittenDate& written) {
        for (std::size_t at = 0; at < numbers.size(); ++at) {
            if (!written.put(parts[at], numbers[at])) return false;
        }
        return true;
    }

    bool putAlone(const DigitGroup& number, WrittenDate& written) const {
        switch (number.digits) {
            case 1:
            case 2: return written.put(single(), number);
            case 4: written = split(number, pair().all()); return true;
            case 6:
                written = Shown_.areMonthAndYear() ? split(number, pair().all()) : split(number, Order_);
                return true;
            case 7:
            case 8: written = split(number, Order_); return true;
            default: return false;
        }
    }

    bool putBesideMonth(std::span<const DigitGroup> numbers, WrittenDate& written) const {
        switch (numbers.size()) {
            case 0: return true;
            case 1: {
                const bool isYear = isLong(numbers[0]) || (Shown_.has(DatePart::Year) && !Shown_.has(DatePart::Day));
                return written.put(isYear ? DatePart::Year : DatePart::Day, numbers[0]);
            }
            case 2: {
                const Pair byOrder = ordered(DatePart::Day, DatePart::Year);
                if (!isLong(numbers[0]) && !isLong(numbers[1])) return putAll(numbers, byOrder.all(), written);
                const std::size_t year = isLong(numbers[0]) ? 0 : 1;
                return written.put(DatePart::Year, numbers[year]) && written.put(DatePart::Day, numbers[1 - year]);
            }
            default: return false;
        }
    }

    const RegionalSettings& Region_;
    ShownParts Shown_;
    PartOrder Order_;
};

/// Collects numbers and names as they come.
class Collector {
public:
    Collector(std::u16string_view text, std::u16string_view format, const RegionalSettings& region)
        : Text_(text), Format_(format), Region_(region) {}

    bool run() {
        std::size_t count = 0;
        for (skipSeparators(Text_); !Text_.empty(); skipSeparators(Text_)) {
            if (++count > MostWords) return false;
            if (!(beginsWithDigit(Text_, Region_.ZeroDigit) ? takeNumber() : takeWord())) return false;
        }
        if (Month_ == NoMonth && Count_ < Numbers_.size()) Month_ = MonthOrWeekday_;
        return Count_ != 0 || Month_ != NoMonth;
    }

    std::span<const DigitGroup> numbers() const { return {Numbers_.data(), Count_}; }
    std::int32_t month() const { return Month_; }

private:
    /// More words and numbers than a date is ever written with, which keeps long texts cheap.
    static constexpr std::size_t MostWords = 16;

    bool takeNumber() {
        if (Count_ == Numbers_.size()) return false;
        Numbers_[Count_++] = takeDigits(Text_, Region_.ZeroDigit);
        return true;
    }

    bool takeWord() {
        std::u16string_view rest = Text_;
        while (!rest.empty() && isWordUnit(rest.front()) && !beginsWithDigit(rest, Region_.ZeroDigit))
            rest.remove_prefix(1);
        const std::u16string_view word = Text_.substr(0, Text_.size() - rest.size());
        Text_ = rest;
        return takeName(word) || takeBehindWrittenWord(word);
    }

    bool takeName(std::u16string_view word) {
        const std::int32_t month = monthNamed(word, Region_);
        const bool isWeekday = isWeekdayName(word, Region_);
        if (month <= NoMonth) return isWeekday;
        // A short word may be either: the last one of two is the month.
        std::int32_t& found = isWeekday ? MonthOrWeekday_ : Month_;
        if (found != NoMonth && !isWeekday) return false;
        found = month;
        return true;
    }

    /// Words that stand between the parts of a date, alone or with a name right after.
    bool takeBehindWrittenWord(std::u16string_view word) {
        if (WrittenWords_.empty())
            WrittenWords_ = wordsWrittenBy(Format_) + u' ' + wordsWrittenBy(Region_.LongDateFormat);
        std::u16string_view rest = WrittenWords_;
        for (skipSeparators(rest); !rest.empty(); skipSeparators(rest)) {
            const std::u16string_view written = rest.substr(0, rest.find(u' '));
            rest.remove_prefix(written.size());
            if (!beginsWithLetters(word, written)) continue;
            if (word.size() == written.size() || takeName(word.substr(written.size()))) return true;
        }
        return false;
    }

    std::u16string_view Text_;
    std::u16string_view Format_;
    const RegionalSettings& Region_;
    std::u16string WrittenWords_;  ///< of the format and the region, once they are needed
    std::array<DigitGroup, 3> Numbers_{};
    std::size_t Count_ = 0;
    std::int32_t Month_ = NoMonth;
    std::int32_t MonthOrWeekday_ = NoMonth;  ///< of a word that may be a weekday as well
};

}  // namespace

WrittenDate splitAsDayMonthYear(const DigitGroup& group) { return split(group, DayFirst); }

bool readByOrder(std::u16string_view text, const DateFormat& format, const RegionalSettings& region,
                 WrittenDate& written) {
    written = {};
    Collector collector(text, format.expression(), region);
    if (!collector.run()) return false;
    const bool hasMonth = collector.month() != NoMonth;
    if (!NumberRoles(format, region).put(collector.numbers(), hasMonth, written)) return false;
    if (hasMonth) written.of(DatePart::Month) = collector.month();
    return true;
}

}  // namespace kel
