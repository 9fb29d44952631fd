#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "values/FormatExpressionFields.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

namespace kel {

/// How the weeks of a year are counted, for "w" and "ww".
struct WeekRule {
    enum class FirstWeek : std::uint8_t {
        WithFirstJanuary = 1,
        WithFourDays = 2,  ///< the first that has four days or more in the year
        FirstFull = 3
    };
    std::uint8_t firstDay = 1;  ///< 1 Sunday … 7 Saturday; 0: the region's
    FirstWeek firstWeek = FirstWeek::WithFirstJanuary;
};

namespace detail {

/// Numbers of two digits, which most of a date and time is made of.
enum class DatePair : std::uint8_t { Day, Month, Century, YearOfCentury, Hour, Minute, Second, None };

struct DateStep {
    DateField field;
    DateField separator = DateField::Literal;  ///< that stands after it, or `Literal` for none
    DatePair pair = DatePair::None;            ///< what the field shows, or a part of it
    std::uint8_t leastOfTwoDigits = 0;         ///< lesser ones are shown with one digit
    std::uint32_t textUnits = 0;               ///< of the text that goes with the field
};

/// What an expression makes of the time of day.
struct Clock {
    bool isShown = false;
    bool countsToTwelve = false;
};

}  // namespace detail

/// A field of a date or time, and where it stands in the text that shows it.
struct ShownField {
    DateField field;
    std::size_t start;
    std::size_t end;
};

/// The section of a format expression that shows dates and times, as the steps that print it.
class DateSection {
public:
    /// An empty section.
    DateSection() = default;
    explicit DateSection(std::u16string_view expression);

    /// Whether anything of a date is shown at all.
    bool hasParts() const { return HasParts_; }

    std::u16string text(Date date, const RegionalSettings& region, const WeekRule& weeks) const;
    /// The fields of that text in order, those of the region's own formats one by one.
    std::vector<ShownField> fields(Date date, const RegionalSettings& region, const WeekRule& weeks) const;

private:
    void append(const detail::DateStep& step);

    std::vector<detail::DateStep> Steps_;
    std::u16string Texts_;  ///< literals and markers of all steps, in order
    detail::Clock Clock_;
    bool HasParts_ = false;
};

}  // namespace kel
