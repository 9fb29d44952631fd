#pragma once

#include <iosfwd>

#include "library/ClassRegistry.h"

namespace kel::idl {

/// Writes, as a table of an installer's database, what registers the servers of one bitness, 64 or 32. It belongs to
/// three components: `Controls` and `Runtime`, each with its server as the file of this name, and `Names`, which the
/// installers of both bitnesses share, so that what one leaves is still there for the other.
void writeRegistryTable(std::ostream& out, const ClassRegistry& classes, int bits);

}  // namespace kel::idl
