#include "controls/datetime/KelTime.h"

#include "common/Persistence.h"

namespace kel {

KelTime::KelTime(ControlHost& host) : Field_(host, *this, DefaultTimeFormat, AllTimes) {}

Variant KelTime::parse(const Variant& text) const { return runtimeDates(host())->ParseTime(text); }

FieldStep KelTime::step(const BoxState& box, std::int32_t delta) const {
    return stepTime(box, clockTime(host().system.timer()), delta, Field_.textRules());
}

void KelTime::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

}  // namespace kel
