#pragma once

#include <iosfwd>

#include "library/ClassRegistry.h"

namespace kel::idl {

/// Writes the interface definition of the type library.
void writeIdl(std::ostream& out, const ClassRegistry& classes);

}  // namespace kel::idl
