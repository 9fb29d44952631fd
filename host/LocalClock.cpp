#include "host/LocalClock.h"

#include <ctime>

#include "values/Calendar.h"

namespace kel {

Date LocalClock::today() {
    comeTo(now());
    return Today_;
}

double LocalClock::secondsSinceMidnight() {
    const Clock::time_point moment = now();
    comeTo(moment);
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

void LocalClock::comeTo(Clock::time_point moment) {
    using namespace std::chrono_literals;
    if (moment >= Minute_ && moment < Minute_ + 1min) return;
    Minute_ = std::chrono::floor<std::chrono::minutes>(moment);
    const std::time_t seconds = Clock::to_time_t(Minute_);
    const std::tm local = *std::localtime(&seconds);
    SecondsAtMinute_ = local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    Today_ = dateOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}).value_or(Date{});
}

}  // namespace kel
