#pragma once

#include "apps/kelforms/Options.h"

namespace kel::app {

enum ExitStatus : int { Done = 0, Differed = 1, Wrong = 2 };

/// Runs the command; throws UsageError, FormError or ScriptError when something is wrong.
ExitStatus runCommand(const Options& options);

}  // namespace kel::app
