#pragma once

#include "values/RegionalSettings.h"

namespace kel::records {

/// How a list of records is written.
struct ListFormat {
    char separator = 0;  ///< 0: a comma in a new list, in one to be read whatever its first line has most of
    bool hasHeader = true;
};

/// Lists for all the world are separated by commas and have decimal points. Those that the programs of a region write
/// with another separator have its numbers, for "12,5" is one of them in half of the world.
inline const RegionalSettings& numbersIn(char separator, const RegionalSettings& region) {
    return separator == ',' ? defaultRegion() : region;
}

}  // namespace kel::records
