#pragma once

#include "apps/kelforms/Commands.h"

namespace kel::app {

/// Writes a form for a table of a database.
ExitStatus makeForm(const Options& options);

}  // namespace kel::app
