#pragma once

#include "forms/Onlooker.h"

namespace kel::terminal {

/// A person at a terminal; where nobody is to `see` it, it draws for one that is not there. Throws std::runtime_error.
std::unique_ptr<Onlooker> makeTerminal(bool seen);

}  // namespace kel::terminal
