#pragma once

#include <memory>

#include "forms/Home.h"

class QLocale;

namespace kel::qt {

struct ControlServices;

/// A Linux desktop, or any other that Qt knows. Needs a QApplication, which outlives it.
std::unique_ptr<Home> makeHome(const HomeOptions& options);

/// The home of the widgets that a program makes by itself. Made when first asked for, with the desktop's own
/// settings; goes with the QApplication.
Home& defaultHome();
/// In a place that has `locale`.
ControlServices defaultSurroundings(const QLocale& locale);
/// The region of `locale`, which stands as long as the default home does.
const RegionalSettings& defaultRegion(const QLocale& locale);

}  // namespace kel::qt
