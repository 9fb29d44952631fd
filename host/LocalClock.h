#pragma once

#include <chrono>

#include "values/Variant.h"

namespace kel {

/// The machine's day and time of day, for homes whose own are dearer. Local time is worked out once a minute, since a
/// progress bar asks for it with every step of a job and a date field for the day at each key; no region changes its
/// clocks within a minute, and midnight begins one.
class LocalClock {
public:
    Date today();
    /// To some milliseconds, which is near enough for people.
    double secondsSinceMidnight();

private:
    using Clock = std::chrono::system_clock;

    static Clock::time_point now();
    void comeTo(Clock::time_point moment);

    Clock::time_point Minute_;
    double SecondsAtMinute_ = 0;
    Date Today_;
};

}  // namespace kel
