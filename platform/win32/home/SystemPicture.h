#pragma once

#include "values/RegionalSettings.h"

/// How the system writes down a region's settings, in the library's own terms. A person may have edited them.
namespace kel::win32 {

/// A picture like "dd'.'MM'.'yyyy", or "HH:mm:ss tt", as a format expression. The separator becomes the region's own
/// ("/", ":") where it stands; an empty one stands nowhere.
std::u16string formatOfDatePicture(std::u16string_view picture, std::u16string_view separator);
std::u16string formatOfTimePicture(std::u16string_view picture, std::u16string_view separator);

/// "3;2;0" as the sizes of the first and of every further group.
void readGrouping(std::u16string_view sizes, RegionalSettings& region);

/// The zero of the ten digits, or the usual one where they are no ten in a row.
char32_t zeroOfDigits(std::u16string_view digits);

}  // namespace kel::win32
