#pragma once

#include <memory>

#include "forms/Onlooker.h"

namespace kel::headless {

/// A home without a screen, for scripts and tests: the widgets live in memory, the clock is the machine's,
/// message boxes and beeps pass in silence. Keys and clicks are `FormWindow`'s hands.
std::unique_ptr<Home> makeHome(const HomeOptions& options);

/// The same with somebody in front of it, who outlives it.
std::unique_ptr<Home> makeHome(const HomeOptions& options, Onlooker& onlooker);

}  // namespace kel::headless
