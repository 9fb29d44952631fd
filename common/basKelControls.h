#pragma once

#include "host/System.h"
#include "library/SharedSettings.h"

namespace kel {

/// Module-wide set-up, run when a control is loaded and no run-time object is held yet: makes a default one
/// and takes the regional settings, the field colours and the button width.
void InitControls(SharedSettings& settings, const System& system);

}  // namespace kel
