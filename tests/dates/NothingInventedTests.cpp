#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "values/Calendar.h"
#include "values/DateReader.h"
#include "values/Text.h"

namespace kel {
namespace {

constexpr DateParts TodayParts{1987, 6, 24};
constexpr std::u16string_view Formats[] = {u"dd/mm/yyyy", u"m/d/yy", u"yyyy-mm-dd", u"ddmmyyyy", u"mm/yyyy"};

using Number = std::u16string_view;
using Numbers = std::vector<Number>;

Numbers numbersIn(std::u16string_view text) {
    Numbers numbers;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] < u'0' || text[at] > u'9') continue;
        std::size_t end = at;
        while (end < text.size() && text[end] >= u'0' && text[end] <= u'9') ++end;
        numbers.push_back(text.substr(at, end - at));
        at = end;
    }
    return numbers;
}

std::int32_t valueOf(Number number) {
    std::int32_t value = 0;
    for (const char16_t digit : number) value = value * 10 + digit - u'0';
    return value;
}

bool isYear(Number number, std::int32_t year) {
    if (number.size() > 2) return valueOf(number) == year;
    return year >= 1950 && year <= 2049 && valueOf(number) == year % 100;
}

/// Whether `numbers` are parts of the date, each another one, and the remaining parts are today's, or the first of
/// the month that is written.
bool explains(const Numbers& numbers, const DateParts& date) {
    constexpr int Day = 0, Month = 1, Year = 2;
    std::array<int, 3> roles = {Day, Month, Year};
    do {
        DateParts rest = TodayParts;
        bool fits = numbers.size() <= roles.size();
        bool isWritten[3] = {};
        for (std::size_t at = 0; fits && at < numbers.size(); ++at) {
            isWritten[roles[at]] = true;
            switch (roles[at]) {
                case Day: fits = numbers[at].size() <= 2 && valueOf(numbers[at]) == date.day; break;
                case Month: fits = numbers[at].size() <= 2 && valueOf(numbers[at]) == date.month; break;
                default: fits = numbers[at].size() <= 4 && isYear(numbers[at], date.year);
            }
        }
        if (isWritten[Month] && isWritten[Year]) rest.day = 1;
        if (fits && (isWritten[Day] || date.day == rest.day) && (isWritten[Month] || date.month == rest.month) &&
            (isWritten[Year] || date.year == rest.year))
            return true;
    } while (std::next_permutation(roles.begin(), roles.end()));
    return false;
}

/// One number may be cut into several.
bool isExplained(std::u16string_view text, const DateParts& date) {
    const Numbers numbers = numbersIn(text);
    if (explains(numbers, date)) return true;
    if (numbers.size() != 1) return false;
    const Number whole = numbers.front();
    for (std::size_t first = 1; first < whole.size(); ++first) {
        if (explains({whole.substr(0, first), whole.substr(first)}, date)) return true;
        for (std::size_t second = first + 1; second < whole.size(); ++second) {
            if (explains({whole.substr(0, first), whole.substr(first, second - first), whole.substr(second)}, date))
                return true;
        }
    }
    return false;
}

/// How many of the formats read a date in the text; a date that is not explained by it is a failure.
std::size_t readings(std::u16string_view text) {
    static const std::vector<DateFormat> formats(std::begin(Formats), std::end(Formats));
    std::size_t count = 0;
    for (const DateFormat& format : formats) {
        const auto date = readDate(text, format, *dateOf(TodayParts), TwoDigitYears::AnyTime, defaultRegion());
        if (!date) continue;
        ++count;
        if (isExplained(text, datePartsOf(*date))) continue;
        ADD_FAILURE() << toUtf8(text) << " by " << toUtf8(format.given()) << ": " << datePartsOf(*date).year << " "
                      << datePartsOf(*date).month << " " << datePartsOf(*date).day;
    }
    return count;
}

TEST(NothingInvented, InAnyShortText) {
    constexpr std::u16string_view Alphabet = u"0139/";
    constexpr std::size_t Longest = 6;
    std::size_t count = 0;
    std::vector<std::size_t> at;
    std::u16string text;
    while (!testing::Test::HasFailure()) {
        std::size_t place = 0;
        while (place < at.size() && ++at[place] == Alphabet.size()) at[place++] = 0;
        if (place == at.size()) at.push_back(0);
        if (at.size() > Longest) break;
        text.resize(at.size());
        for (std::size_t unit = 0; unit < at.size(); ++unit) text[unit] = Alphabet[at[unit]];
        count += readings(text);
    }
    EXPECT_GT(count, 2000U);
}

}  // namespace
}  // namespace kel
