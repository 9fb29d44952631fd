#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "values/FormatExpressionScanner.h"

namespace kel {

enum class DateField : std::uint8_t {
    Literal,
    DateSeparator,
    TimeSeparator,
    Day,
    TwoDigitDay,
    ShortWeekday,
    Weekday,
    ShortDate,
    LongDate,
    WeekdayNumber,
    WeekOfYear,
    Month,
    TwoDigitMonth,
    ShortMonthName,
    MonthName,
    Quarter,
    DayOfYear,
    TwoDigitYear,
    Year,
    Hour,
    TwoDigitHour,
    Minute,
    TwoDigitMinute,
    Second,
    TwoDigitSecond,
    LongTime,
    HalfDay,          ///< the marker as the expression writes it
    RegionalHalfDay,  ///< and as the region does
    General,
};

struct DateToken {
    DateField field = DateField::Literal;
    std::u16string_view text{};  ///< of a literal or a marker; of no meaning for other fields
};

constexpr bool isHour(DateField field) { return field == DateField::Hour || field == DateField::TwoDigitHour; }
constexpr bool isHalfDay(DateField field) { return field == DateField::HalfDay || field == DateField::RegionalHalfDay; }
constexpr bool isSeparator(DateField field) {
    return field == DateField::DateSeparator || field == DateField::TimeSeparator;
}
/// Whether a field is shown by a format of the region's.
constexpr bool isRegional(DateField field) {
    return field == DateField::ShortDate || field == DateField::LongDate || field == DateField::LongTime ||
           field == DateField::General;
}
/// Whether a token is a part of a date or time, not something between parts.
constexpr bool isPart(DateField field) { return field > DateField::TimeSeparator; }

namespace detail {

/// The field of one letter; those of two and more of it stand after it in the enumeration.
struct LetterRun {
    DateField first = DateField::Literal;
    std::uint8_t most = 0;

    constexpr DateField of(std::size_t count) const {
        return static_cast<DateField>(static_cast<std::size_t>(first) + count - 1);
    }
};

inline constexpr LetterRun MinuteRun{DateField::Minute, 2};
inline constexpr std::size_t MostRegionalDays = 4;

inline constexpr std::array<LetterRun, 26> LetterRuns = [] {
    std::array<LetterRun, 26> runs{};
    const auto letter = [&runs](char16_t unit) -> LetterRun& { return runs.at(unit - u'a'); };
    letter(u'd') = {DateField::Day, 6};
    letter(u'h') = {DateField::Hour, 2};
    letter(u'm') = {DateField::Month, 4};
    letter(u'n') = MinuteRun;
    letter(u'q') = {DateField::Quarter, 1};
    letter(u's') = {DateField::Second, 2};
    letter(u'w') = {DateField::WeekdayNumber, 2};
    letter(u'y') = {DateField::DayOfYear, 4};
    return runs;
}();

/// The letter in lower case; what is none gives no letter.
constexpr char16_t lowerLetter(char16_t unit) { return unit | 0x20; }
constexpr std::size_t letterIndex(char16_t unit) { return static_cast<std::size_t>(lowerLetter(unit) - u'a'); }

inline std::size_t lettersInRow(std::u16string_view text, std::size_t most) {
    const std::size_t end = std::min(text.size(), most);
    const char16_t letter = lowerLetter(text.front());
    std::size_t count = 1;
    while (count < end && lowerLetter(text[count]) == letter) ++count;
    return count;
}

}  // namespace detail

/// Takes the first section of a format expression apart into the fields of dates and times and what stands
/// between them. Inline, because a date field is read by its expression at every key.
class DateFieldScanner {
public:
    enum class Source : std::uint8_t {
        Expression,
        Region  ///< a region's own format, to which no field refers again
    };

    explicit DateFieldScanner(std::u16string_view expression, Source source = Source::Expression)
        : Scanner_(expression), Source_(source) {}

    /// The next token; false at the end.
    bool next(DateToken& token);

    /// The expression from the next token on; at the end, the sections that are for numbers alone.
    std::u16string_view rest() const { return Scanner_.rest(); }

    /// The field of the next token; `Literal` at the end, too.
    DateField peek() const { return isAtLetter() ? nextField() : DateField::Literal; }

private:
    struct Run {
        DateField field;
        std::size_t length = 1;
    };
    DateField nextField() const;
    bool isAtLetter() const;
    bool nextSymbol(DateToken& token);
    bool nextLiteral(DateToken& token);
    bool nextWord(DateToken& token);
    Run runAt(std::u16string_view text, detail::LetterRun run) const;
    Run wordAt(std::u16string_view text) const;
    bool take(DateField field, std::size_t units, DateToken& token);

    FormatScanner Scanner_;
    Source Source_;
    bool IsBehindHour_ = false;
};

inline DateFieldScanner::Run DateFieldScanner::runAt(std::u16string_view text, detail::LetterRun run) const {
    std::size_t count = detail::lettersInRow(text, run.most);
    switch (run.first) {
        case DateField::Day:
            if (Source_ == Source::Region) count = std::min(count, detail::MostRegionalDays);
            break;
        case DateField::Month:
            if (IsBehindHour_ && count <= detail::MinuteRun.most) return {detail::MinuteRun.of(count), count};
            break;
        case DateField::DayOfYear:
            if (count == 3) return {DateField::TwoDigitYear, 2};
            if (count == 4) return {DateField::Year, 4};
            break;
        default: break;
    }
    return {run.of(count), count};
}

/// Takes what begins with something else than a letter.
inline bool DateFieldScanner::nextSymbol(DateToken& token) {
    switch (Scanner_.rest().front()) {
        case u';': return false;
        case u'/': token.field = DateField::DateSeparator; break;
        case u':': token.field = DateField::TimeSeparator; break;
        default: return nextLiteral(token);
    }
    Scanner_.skip(1);
    return true;
}

inline bool DateFieldScanner::isAtLetter() const {
    return !Scanner_.atEnd() && detail::letterIndex(Scanner_.rest().front()) < detail::LetterRuns.size();
}

inline bool DateFieldScanner::take(DateField field, std::size_t units, DateToken& token) {
    Scanner_.skip(units);
    token.field = field;
    if (isPart(field)) IsBehindHour_ = isHour(field);
    return true;
}

inline bool DateFieldScanner::next(DateToken& token) {
    if (Scanner_.atEnd()) return false;
    const std::size_t letter = detail::letterIndex(Scanner_.rest().front());
    if (letter >= detail::LetterRuns.size()) return nextSymbol(token);
    const detail::LetterRun& letters = detail::LetterRuns[letter];
    if (letters.most == 0) return nextWord(token);
    const Run run = runAt(Scanner_.rest(), letters);
    return take(run.field, run.length, token);
}

}  // namespace kel
