#include "controls/datetime/KelDate.h"

#include "common/FieldFrame.h"

namespace kel {

// ---- Rules

Variant DateRules::parse(const Variant& text, const ControlHost& host, const std::u16string& format) const {
    return runtimeDates(host)->ParseDate(text, format, host.system.today(), DaysFlag == KelDateDaysFlag::BirthDay);
}

std::optional<std::u16string> DateRules::acceptedFormat(const std::u16string& format) const {
    return format.empty() ? std::nullopt : std::optional(format);
}

DayPin DateRules::pin(const ControlHost& host) const {
    return {DaysFlag, [&host](Date date) { return runtimeDates(host)->LastDayOfMonth(date); }};
}

Date DateRules::committed(Date date, const ControlHost& host, const DateBounds& bounds) const {
    return kel::committed(date, bounds, pin(host));
}

FieldStep DateRules::step(const BoxState& box, std::int32_t delta, const ControlHost& host,
                          const FieldRules& rules) const {
    return stepDate(box, host.system.today(), delta, rules, pin(host));
}

KeyAnswer DateRules::answerToCharacter(char32_t character, const RegionalSettings& /*region*/) const {
    return answerToDateCharacter(character);
}

// ---- The control

KelDate::KelDate(ControlHost& host) : Field_(host, *this, Rules_, Change, DefaultDateFormat, AllDates) {}

void KelDate::put_DaysFlag(KelDateDaysFlag flag) {
    Rules_.DaysFlag = flag;
    entry().report<&KelDate::put_DaysFlag>();
}

std::u16string KelDate::storedValue() const { return savedDate(Field_.valueToStore(), Field_.host().system.today()); }

}  // namespace kel
