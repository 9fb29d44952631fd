#pragma once

namespace kel {

/// Whether everything is tried, which takes minutes, and not a sample of it.
extern bool isThorough;

}  // namespace kel
