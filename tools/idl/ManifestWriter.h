#pragma once

#include <iosfwd>

#include "library/ClassRegistry.h"

namespace kel::idl {

/// Writes the manifest with which programs use the servers unregistered, from their own folder.
void writeManifest(std::ostream& out, const ClassRegistry& classes);

}  // namespace kel::idl
