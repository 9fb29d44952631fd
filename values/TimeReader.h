#pragma once

#include <optional>
#include <string_view>

#include "values/RegionalSettings.h"
#include "values/Variant.h"

/// Times of day as people write them in their region.
///
/// - Hours, minutes and seconds of one or two digits, the latter two if need be, with ":", ".", "-", "h" or the
///   region's time separator between them, or blanks; blanks may stand beside a separator. Something stands after
///   each.
/// - Digits alone: one or two are hours, three and four end in minutes, six in minutes and seconds.
/// - "a", "am", "p", "pm" and the region's own markers, in any case, with points or without, in front or after.
///   12 am is midnight, 12 pm and 0 pm are noon; above 12 the hour stands as it is.
/// - Words after that are no markers, as in "9:30 Uhr", are passed over, but not months: "15 March" is no time. So is
///   a date in front, in any order, with a blank after it: "15/03 9:30".
/// - 24:00, 0:60 and 99 are no times.
namespace kel {

/// The time of day that all of `text` stands for, or nothing. The time taken grows with the length of the text.
std::optional<Date> readTime(std::u16string_view text, const RegionalSettings& region);

}  // namespace kel
