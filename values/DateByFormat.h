#pragma once

#include <string_view>

#include "values/DateFormat.h"
#include "values/RegionalSettings.h"
#include "values/WrittenDate.h"

namespace kel {

/// Reads a text, which has no separators in front, that has the layout of a format: its parts in their
/// places, its words, its names as the region writes them. Separators may be others than the format's, and numbers may
/// lack leading zeros where something stands between them. False when the text has another layout.
bool readByFormat(std::u16string_view text, const DateFormat& format, const RegionalSettings& region,
                  WrittenDate& written);

}  // namespace kel
