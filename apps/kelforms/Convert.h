#pragma once

#include "apps/kelforms/Commands.h"

namespace kel::app {

/// Writes a form for Qt's designer and says what of the classic one stays behind. Throws UsageError where this program
/// has no Qt.
ExitStatus convertForm(const Options& options);

}  // namespace kel::app
