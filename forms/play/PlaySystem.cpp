#include "forms/play/PlaySystem.h"

#include <cmath>
#include <utility>

#include "forms/ScriptValue.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel {

PlaySystem::PlaySystem(System& platform, std::function<void(const std::u16string&)> print)
    : Platform_(platform), Print_(std::move(print)) {}

void PlaySystem::setToday(Date day) { Today_ = day; }

void PlaySystem::setTimer(double secondsSinceMidnight) { Timer_ = secondsSinceMidnight; }

void PlaySystem::advance(double seconds) {
    const double later = timer() + seconds;
    const double passedDays = std::floor(later / SecondsPerDay);
    Today_ = Date{today().Serial + passedDays};
    Timer_ = later - passedDays * SecondsPerDay;
}

Date PlaySystem::today() const { return Today_ ? *Today_ : Platform_.today(); }

double PlaySystem::timer() const { return Timer_ ? *Timer_ : Platform_.timer(); }

void PlaySystem::messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) {
    Print_(u"message " + widen(std::to_string(style)) + u" " + quoteScriptText(title) + u" " + quoteScriptText(prompt));
}

void PlaySystem::beep() { Print_(u"beep"); }

}  // namespace kel
