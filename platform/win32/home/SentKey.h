#pragma once

#include <cstdint>

namespace kel::win32 {

/// Presses a key, without modifier keys, in the window of this thread that has the focus. It goes in front of what is
/// still in the queue: what a person has typed ahead finds done what the key does. False where no window has the focus.
bool sendKeyAhead(std::int16_t code);

}  // namespace kel::win32
