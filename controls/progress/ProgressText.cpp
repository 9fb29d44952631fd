#include "controls/progress/ProgressText.h"

#include "values/FormatExpression.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr double SecondsBeforeEstimate = 10;
constexpr double SecondsShownAsMinutes = 91;
constexpr double SecondsPerMinute = 60;
constexpr double OftenEnough = 10;
constexpr double OftenEnoughForMinutes = 60;

}  // namespace

std::u16string percentText(double share) { return worded(Percentage, widen(std::to_string(percentOf(share)))); }

TimeLeft timeLeft(const ProgressRange& range, std::int32_t value, double elapsed, const RegionalSettings& region) {
    static const FormatExpression Minutes(u"#,##0"), Seconds(u"#0");
    const TimeLeft nothingToSay{{}, OftenEnough};
    if (elapsed <= SecondsBeforeEstimate || value == 0) return nothingToSay;
    const double remaining = static_cast<double>(range.size()) / value * elapsed - elapsed;
    if (remaining < 1) return nothingToSay;
    if (remaining < SecondsShownAsMinutes)
        return {worded(SecondsRemaining, Seconds.format(remaining, region)), OftenEnough};
    return {worded(MinutesRemaining, Minutes.format(remaining / SecondsPerMinute, region)), OftenEnoughForMinutes};
}

}  // namespace kel
