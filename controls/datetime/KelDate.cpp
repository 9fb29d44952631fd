#include "controls/datetime/KelDate.h"

#include "common/Persistence.h"

namespace kel {

KelDate::KelDate(ControlHost& host) : Field_(host, *this, DefaultDateFormat, AllDates) {}

void KelDate::put_DaysFlag(KelDateDaysFlag flag) {
    DaysFlag_ = flag;
    frame().report(u"DaysFlag");
}

void KelDate::put_Format(const std::u16string& format) {
    if (!format.empty()) Field_.putFormat(format);
}

Variant KelDate::parse(const Variant& text) const {
    return runtimeDates(host())->ParseDate(text, get_Format(), host().system.today(),
                                           DaysFlag_ == KelDateDaysFlag::BirthDay);
}

DayPin KelDate::pin() const {
    return {DaysFlag_, [this](Date date) { return runtimeDates(host())->LastDayOfMonth(date); }};
}

FieldStep KelDate::step(const BoxState& box, std::int32_t delta) const {
    return stepDate(box, host().system.today(), delta, Field_.textRules(), pin());
}

std::u16string KelDate::storedValue() const { return savedDate(Field_.valueToStore(), host().system.today()); }

void KelDate::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

}  // namespace kel
