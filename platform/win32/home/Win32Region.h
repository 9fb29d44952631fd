#pragma once

#include "values/RegionalSettings.h"

namespace kel::win32 {

/// A region as the system describes it, by name ("de-DE"); nullptr is the user's own, with what the user
/// changed in it.
RegionalSettings readRegion(const wchar_t* name);

/// The user's own region, read once a process.
const RegionalSettings& systemRegion();

}  // namespace kel::win32
