#pragma once

#include <iosfwd>

#include "library/ClassRegistry.h"

namespace kel::idl {

/// Writes, for each class, a C++ class template whose function table hands each call to its base by the
/// number of the member's row.
void writeForwarding(std::ostream& out, const ClassRegistry& classes);

}  // namespace kel::idl
