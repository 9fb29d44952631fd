#pragma once

#include <string>

#include "forms/file/FormModel.h"

namespace kel {

inline constexpr std::size_t LongestFormLine = std::size_t{1} << 20;  ///< bytes
inline constexpr std::size_t DeepestFormNesting = 64;                 ///< blocks and groups inside one another
inline constexpr std::size_t MostFormLines = 1'000'000;               ///< in front of the code

/// Takes a whole file apart. Throws FormError at the first line that is wrong; `path` is only named there.
FormModel parseForm(std::string bytes, const std::string& path);

}  // namespace kel
