#pragma once

#include "apps/kelforms/Commands.h"

namespace kel::app {

// Records from and to lists in files. Throw UsageError, FormError and records::StoreError.
ExitStatus importList(const Options& options);
ExitStatus exportList(const Options& options);

}  // namespace kel::app
