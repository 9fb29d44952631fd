#include "controls/datetime/KelTime.h"

namespace kel {

Variant KelTime::parse(const Variant& text) const { return runtimeDates(host())->ParseTime(text); }

FieldStep KelTime::step(const BoxState& box, std::int32_t delta) const {
    return stepTime(box, clockTime(host().system.timer()), delta, field().textRules());
}

}  // namespace kel
