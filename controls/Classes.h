#pragma once

#include "library/ClassRegistry.h"

namespace kel {

/// All classes of the library, in the order they are listed to hosts.
const ClassRegistry& libraryClasses();

}  // namespace kel
