#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "forms/file/FormModel.h"

namespace kel {

/// A fault of another line than the one that is being read.
struct PlacedFormFault {
    std::size_t line = 0;
    std::string message;
};

struct NamedLine {
    std::string_view name;
    std::size_t line = 0;
};
using NamedLines = std::vector<NamedLine>;

/// No two properties or groups side by side have one name, case ignored. Throws PlacedFormFault.
void requireUniqueNames(NamedLines names);

/// No two controls of a form have one name, unless each of them has an index of its own. The form itself may be
/// called as one of its controls. Throws PlacedFormFault.
void requireUniqueBlocks(const std::vector<FormBlock>& blocks);

}  // namespace kel
