#pragma once

#include <cstdint>
#include <optional>

#include "host/Keys.h"

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

/// What Enter, Backspace and Escape come to in a field of one line; nothing for other characters.
constexpr std::optional<KeyAnswer> answerToControlCharacter(char32_t character) {
    switch (character) {
        case keys::Backspace:
        case keys::Escape: return KeyAnswer::Passes;
        case keys::Enter: return KeyAnswer::MovesOn;
        default: return std::nullopt;
    }
}

}  // namespace kel
