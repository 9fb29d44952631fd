#include "controls/datetime/KelDate.h"

namespace kel {

void KelDate::put_DaysFlag(KelDateDaysFlag flag) {
    DaysFlag_ = flag;
    field().frame().report(u"DaysFlag");
}

void KelDate::put_Format(const std::u16string& format) {
    if (!format.empty()) field().putFormat(format);
}

Variant KelDate::parse(const Variant& text) const {
    return runtimeDates(host())->ParseDate(text, get_Format(), host().system.today(),
                                           DaysFlag_ == KelDateDaysFlag::BirthDay);
}

DayPin KelDate::pin() const {
    return {DaysFlag_, [this](Date date) { return runtimeDates(host())->LastDayOfMonth(date); }};
}

FieldStep KelDate::step(const BoxState& box, std::int32_t delta) const {
    return stepDate(box, host().system.today(), delta, field().textRules(), pin());
}

std::u16string KelDate::storedValue() const { return savedDate(field().valueToStore(), host().system.today()); }

}  // namespace kel
