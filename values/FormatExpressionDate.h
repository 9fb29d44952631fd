#pragma once

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

/// The section of a format expression that shows dates and times, as the steps that print it.
class DateSection {
public:
    /// An empty section.
    DateSection() = default;
    explicit DateSection(std::u16string_view expression);

    /// Whether anything of a date is shown at all.
    bool hasParts() const { return HasParts_; }

    std::u16string text(Date date, const RegionalSettings& region, const WeekRule& weeks) const;

private:
    struct Step {
        DateField field;
        DateField separator;  ///< that stands behind, or `Literal` for none
        std::uint32_t count;  ///< units of the text that goes with the field
    };
    class Printer;

    std::vector<Step> Steps_;
    std::u16string Texts_;  ///< literals and markers of all steps, in order
    bool HasParts_ = false;
    bool HasTime_ = false;
    bool HasHalfDay_ = false;
};

}  // namespace kel
