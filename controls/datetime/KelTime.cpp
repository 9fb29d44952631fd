#include "controls/datetime/KelTime.h"

#include "common/FieldFrame.h"

namespace kel {

// ---- Rules

Variant TimeRules::parse(const Variant& text, const ControlHost& host, const std::u16string& /*format*/) const {
    return runtimeDates(host)->ParseTime(text);
}

std::optional<std::u16string> TimeRules::acceptedFormat(const std::u16string& format) const {
    return correctedTimeFormat(format);
}

FieldStep TimeRules::step(const BoxState& box, std::int32_t delta, const ControlHost& host,
                          const FieldRules& rules) const {
    return stepTime(box, clockTime(host.system.timer()), delta, rules);
}

KeyAnswer TimeRules::answerToCharacter(char32_t character, const RegionalSettings& region) const {
    return answerToTimeCharacter(character, region.ZeroDigit);
}

// ---- The control

KelTime::KelTime(ControlHost& host) : Field_(host, *this, Rules_, Change, DefaultTimeFormat, AllTimes) {}

}  // namespace kel
