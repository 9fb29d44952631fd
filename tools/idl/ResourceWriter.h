#pragma once

#include <filesystem>

#include "library/ClassRegistry.h"

namespace kel::idl {

/// Writes a resource script with the type library and one toolbox picture a control, and the pictures beside
/// it.
void writeResources(const std::filesystem::path& script, const ClassRegistry& classes);

}  // namespace kel::idl
