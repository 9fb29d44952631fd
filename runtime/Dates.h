#pragma once

#include <string_view>

#include "values/DateReader.h"
#include "values/RegionalSettings.h"
#include "values/Variant.h"

namespace kel {

/// What `value` is as a day without a time, or Null: a text is read, a number is a day serial, a date loses its
/// time. Booleans, lists, objects and days outside the calendar are none.
Variant dateFromValue(const Variant& value, const DateFormat& format, Date defaultDate, TwoDigitYears years,
                      const RegionalSettings& region);

/// What `value` is as a time of day to the second, or Null: a text is read, a number is a day serial and gives
/// its time, as a date does.
Variant timeFromValue(const Variant& value, const RegionalSettings& region);

}  // namespace kel
