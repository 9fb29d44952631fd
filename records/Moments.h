#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/Variant.h"

/// Days and times as databases and files write them, in order as texts: 2013-03-15, 10:15:30, 2013-03-15 10:15:30.
/// Years are those of the calendar, 0100 to 9999.
namespace kel::records {

std::u16string isoDay(Date date);
std::u16string isoTime(Date date);

/// The day that a text begins with, whether a time follows or not. Nothing where none stands there.
std::optional<Date> readIsoDay(std::u16string_view text);
/// The time of day of a text, after a day or alone, to the second; what follows, such as a fraction or a zone, is
/// passed over. Nothing where there is none.
std::optional<Date> readIsoTime(std::u16string_view text);

/// `text` with this day before its time, which is midnight where it has none. A zone goes with the day that it belongs
/// to: ten in the morning is +02 in July, and +01 in January.
std::u16string withIsoDay(std::u16string_view text, Date day);
/// `text` with this time after its day; the time alone where it has none. A fraction of the second that stands there
/// already stays.
std::u16string withIsoTime(std::u16string_view text, Date time);

}  // namespace kel::records
