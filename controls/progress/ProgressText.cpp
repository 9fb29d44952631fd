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

ValueSpan valuesOfSameBar(const ProgressRange& range, std::int32_t value, std::int32_t width) {
    const std::int32_t bar = nearestPart(range.share(value), width);
    // The bar only grows with the value: halve what lies between one that is of the same bar and one that is not.
    const auto farthest = [&](std::int64_t same, std::int64_t other) {
        while (same - other > 1 || other - same > 1) {
            const std::int64_t middle = same + (other - same) / 2;
            const bool isSame = nearestPart(range.share(static_cast<std::int32_t>(middle)), width) == bar;
            (isSame ? same : other) = middle;
        }
        return static_cast<std::int32_t>(same);
    };
    return {farthest(value, std::int64_t{range.min} - 1), farthest(value, std::int64_t{range.max} + 1)};
}

std::u16string percentText(double share) { return widen(std::to_string(nearestPart(share, 100))) + u'%'; }

TimeLeft timeLeft(const ProgressRange& range, std::int32_t value, double elapsed, const RegionalSettings& region) {
    static const FormatExpression Minutes(u"#,##0"), Seconds(u"#0");
    const TimeLeft nothingToSay{{}, OftenEnough};
    if (elapsed <= SecondsBeforeEstimate || value == 0) return nothingToSay;
    const double remaining = static_cast<double>(range.size()) / value * elapsed - elapsed;
    if (remaining < 1) return nothingToSay;
    if (remaining < SecondsShownAsMinutes)
        return {u" (" + Seconds.format(remaining, region) + u" seconds remaining)", OftenEnough};
    return {u" (" + Minutes.format(remaining / SecondsPerMinute, region) + u" minutes remaining)",
            OftenEnoughForMinutes};
}

}  // namespace kel
