#pragma once

#include <chrono>

namespace kel {

/// The machine's time of day, for homes whose own is dearer. Local time is worked out once a minute, since a progress
/// bar asks for it with every step of a job; no region changes its clocks within a minute.
class LocalClock {
public:
    /// To some milliseconds, which is near enough for people.
    double secondsSinceMidnight();

private:
    using Clock = std::chrono::system_clock;

    static Clock::time_point now();
    void startMinute(Clock::time_point minute);

    Clock::time_point Minute_;
    double SecondsAtMinute_ = 0;
};

}  // namespace kel
