#pragma once

#include <cstdint>
#include <string>

#include "library/Message.h"
#include "values/RegionalSettings.h"

/// What the progress bar shows of a job, as pure functions.
namespace kel {

/// The values that a job goes through.
struct ProgressRange {
    std::int32_t min = 1;
    std::int32_t max = 100;

    constexpr std::int64_t size() const { return std::int64_t{max} - min + 1; }

    constexpr std::int32_t clamp(std::int32_t value) const { return value < min ? min : value > max ? max : value; }

    /// How much of the job is done at `value`: nothing below the first one, 1 from the last one on.
    constexpr double share(std::int32_t value) const {
        const std::int64_t position = value < min ? 0 : std::int64_t{clamp(value)} - min + 1;
        return static_cast<double>(position) / static_cast<double>(size());
    }
};

/// The part of `whole`, to the nearest unit, halves to the even one. Asked with every step of a job.
constexpr std::int32_t nearestPart(double share, std::int32_t whole) {
    const double part = share * whole;
    const auto below = static_cast<std::int32_t>(part);
    const double rest = part - below;
    const bool goesUp = rest > 0.5 || (rest == 0.5 && below % 2 != 0);
    return goesUp ? below + 1 : below;
}

/// Rounded in that way.
constexpr std::int32_t percentOf(double share) { return nearestPart(share, 100); }

inline constexpr MessageRow Percentage{{}, u"{1}%", u"Always, how much of the job is done"};
inline constexpr MessageRow SecondsRemaining{
    {},
    u" ({1} seconds remaining)",
    u"ShowTime is on, ten seconds have gone by since Start, and less than 91 seconds are left"};
inline constexpr MessageRow MinutesRemaining{
    {}, u" ({1} minutes remaining)", u"ShowTime is on, ten seconds have gone by since Start, and more is left"};

/// "42%"
std::u16string percentText(double share);

/// What is said of the time that a job still takes.
struct TimeLeft {
    std::u16string text;  ///< " (3 minutes remaining)"; empty while there is nothing to say
    double goodFor;       ///< seconds until it is said anew, even when the bar does not grow
};

/// `elapsed` seconds after the job was started, at `value`. The pace is measured on the value itself and not on the
/// place it has in the range.
TimeLeft timeLeft(const ProgressRange& range, std::int32_t value, double elapsed, const RegionalSettings& region);

}  // namespace kel
