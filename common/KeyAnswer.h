#pragma once

#include <cstdint>

namespace kel {

/// What a key comes to in an entry field.
enum class KeyAnswer : std::uint8_t {
    Passes,  ///< the box gets it
    Writes,  ///< the box gets it, and in overwrite mode it replaces the next character
    StepsUp,
    StepsDown,
    TogglesInsertMode,  ///< the box gets it as well
    MovesOn,            ///< the focus goes on as by Tab
    Refused,
    Beeps,  ///< refused, for everybody to hear
};

/// Whether the box gets the key.
constexpr bool reachesBox(KeyAnswer answer) {
    return answer == KeyAnswer::Passes || answer == KeyAnswer::Writes || answer == KeyAnswer::TogglesInsertMode;
}

/// +1 or -1 for a step, 0 for everything else.
constexpr int stepOf(KeyAnswer answer) {
    return answer == KeyAnswer::StepsUp ? 1 : answer == KeyAnswer::StepsDown ? -1 : 0;
}

}  // namespace kel
