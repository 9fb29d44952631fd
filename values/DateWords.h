#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "values/RegionalSettings.h"

/// The words of dates, in a region's language and in English, whatever their case and accents.
namespace kel {

inline constexpr std::int32_t NoMonth = 0;
inline constexpr std::int32_t SeveralMonths = -1;

/// The month that `word` names in full or by three letters or more: 1 to 12, or one of the above. What the
/// region's language says goes before what English says.
std::int32_t monthNamed(std::u16string_view word, const RegionalSettings& region);

/// Whether `word` is a weekday's name, a word of it, or three letters of it or more.
bool isWeekdayName(std::u16string_view word, const RegionalSettings& region);

/// The words that a format expression writes itself, with blanks between them.
std::u16string wordsWrittenBy(std::u16string_view expression);

}  // namespace kel
