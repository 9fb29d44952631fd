#pragma once

#include <memory>

#include "forms/Home.h"

namespace kel::win32 {

/// A home on the system's own windows. Its hands work through the queue of the calling thread.
std::unique_ptr<Home> makeHome(const HomeOptions& options);

/// Serves the windows of a home that `makeHome` made until the last one is closed.
void runUntilClosed(Home& home);

}  // namespace kel::win32
