#include "values/DateWords.h"

#include <algorithm>
#include <iterator>

#include "values/FormatExpressionFields.h"
#include "values/Words.h"

namespace kel {

namespace {

constexpr std::u16string_view EnglishMonths[] = {u"January",   u"February", u"March",    u"April",
                                                 u"May",       u"June",     u"July",     u"August",
                                                 u"September", u"October",  u"November", u"December"};
constexpr std::u16string_view EnglishWeekdays[] = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                   u"Thursday", u"Friday", u"Saturday"};

constexpr std::size_t LeastLetters = 3;

enum class Fit : std::uint8_t { None, Beginning, Whole };

/// How `word` stands to `name`, of which the abbreviating point is no part.
Fit fitOf(std::u16string_view word, std::u16string_view name) {
    while (!name.empty() && !isWordUnit(name.back())) name.remove_suffix(1);
    if (name.empty() || !beginsWithLetters(name, word)) return Fit::None;
    if (word.size() == name.size()) return Fit::Whole;
    return word.size() >= LeastLetters ? Fit::Beginning : Fit::None;
}

/// Months that fit a word in one language.
class MonthSearch {
public:
    explicit MonthSearch(std::u16string_view word) : Word_(word) {}

    template <class Names>
    void look(const Names& names) {
        std::int32_t month = 0;
        for (const auto& name : names) {
            ++month;
            const Fit fit = fitOf(Word_, name);
            if (fit == Fit::Whole) add(Whole_, month);
            if (fit != Fit::None) add(Beginning_, month);
        }
    }

    std::int32_t whole() const { return Whole_; }
    std::int32_t beginning() const { return Beginning_; }

private:
    static void add(std::int32_t& found, std::int32_t month) {
        found = found == NoMonth || found == month ? month : SeveralMonths;
    }

    std::u16string_view Word_;
    std::int32_t Whole_ = NoMonth;
    std::int32_t Beginning_ = NoMonth;
};

template <class Names>
bool fitsWordOf(std::u16string_view word, const Names& names) {
    return std::any_of(std::begin(names), std::end(names), [word](std::u16string_view name) {
        while (!name.empty()) {
            skipSeparators(name);
            const auto end = std::find_if_not(name.begin(), name.end(), isWordUnit);
            const auto length = static_cast<std::size_t>(end - name.begin());
            if (fitOf(word, name.substr(0, length)) != Fit::None) return true;
            name.remove_prefix(length);
        }
        return false;
    });
}

}  // namespace

std::int32_t monthNamed(std::u16string_view word, const RegionalSettings& region) {
    MonthSearch regional(word);
    regional.look(region.MonthNames);
    regional.look(region.AbbreviatedMonthNames);
    regional.look(region.StandaloneMonthNames);
    MonthSearch english(word);
    english.look(EnglishMonths);
    for (const std::int32_t month : {regional.whole(), english.whole(), regional.beginning()}) {
        if (month != NoMonth) return month;
    }
    return english.beginning();
}

bool isWeekdayName(std::u16string_view word, const RegionalSettings& region) {
    return fitsWordOf(word, region.WeekdayNames) || fitsWordOf(word, region.AbbreviatedWeekdayNames) ||
           fitsWordOf(word, EnglishWeekdays);
}

std::u16string wordsWrittenBy(std::u16string_view expression) {
    std::u16string words;
    DateFieldScanner scanner(expression);
    for (DateToken token; scanner.next(token);) {
        if (token.field != DateField::Literal) {
            words += u' ';
            continue;
        }
        for (const char16_t unit : token.text) words += isWordUnit(unit) ? unit : u' ';
    }
    return words;
}

}  // namespace kel
