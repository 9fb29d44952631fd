#pragma once

#include "values/RegionalSettings.h"

class QLocale;

namespace kel::qt {

/// The settings of a locale as Qt knows it; of `QLocale::system()`, those of the user's own system.
///
/// Years have four digits in the short date. Short date and time hold only digits and separators (and am or pm),
/// so that what a field shows reads back; words that some locales add ("14 h 05") are left out of them.
RegionalSettings regionFromLocale(const QLocale& locale);

}  // namespace kel::qt
