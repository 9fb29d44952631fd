#pragma once

#include <string_view>

#include "values/DateFormat.h"
#include "values/RegionalSettings.h"
#include "values/WrittenDate.h"

namespace kel {

/// Digits in a row as day, month and year, two of each but for the year's.
WrittenDate splitAsDayMonthYear(const DigitGroup& group);

/// Reads a text of any layout: numbers in the order in which the format shows day, month and year,
/// and names. False when there is a word that says nothing, or too much is said.
bool readByOrder(std::u16string_view text, const DateFormat& format, const RegionalSettings& region,
                 WrittenDate& written);

}  // namespace kel
