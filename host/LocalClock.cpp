#include "host/LocalClock.h"

#include <ctime>

namespace kel {

double LocalClock::secondsSinceMidnight() {
    using namespace std::chrono_literals;
    const Clock::time_point moment = now();
    if (moment < Minute_ || moment >= Minute_ + 1min) startMinute(std::chrono::floor<std::chrono::minutes>(moment));
    return SecondsAtMinute_ + std::chrono::duration<double>(moment - Minute_).count();
}

/// To the nanosecond it would cost much more.
LocalClock::Clock::time_point LocalClock::now() {
#ifdef __linux__
    std::timespec moment{};
    clock_gettime(CLOCK_REALTIME_COARSE, &moment);
    return Clock::time_point(std::chrono::seconds(moment.tv_sec) + std::chrono::nanoseconds(moment.tv_nsec));
#else
    return Clock::now();
#endif
}

void LocalClock::startMinute(Clock::time_point minute) {
    const std::time_t seconds = Clock::to_time_t(minute);
    const std::tm local = *std::localtime(&seconds);
    SecondsAtMinute_ = local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    Minute_ = minute;
}

}  // namespace kel
