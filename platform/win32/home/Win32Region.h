#pragma once

#include "values/RegionalSettings.h"

namespace kel::win32 {

/// A region as the system describes it, by name ("de-DE"); nullptr is the user's own, with what the user
/// changed in it.
RegionalSettings readRegion(const wchar_t* name);

/// The user's own region, read once a process.
const RegionalSettings& systemRegion();

/// That of a locale as component hosts name it, each read once a process; the user's own for the user's locale, for
/// none (0), and for one that the system does not know. On any thread.
const RegionalSettings& regionOf(std::uint32_t locale);

}  // namespace kel::win32
