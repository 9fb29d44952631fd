#pragma once

#include <cstdint>

#include "host/Keys.h"

namespace kel {

/// What a key or a menu does in an edit box.
enum class EditAction : std::uint8_t {
    None,
    // These move the caret.
    Left,
    Right,
    WordLeft,
    WordRight,
    LineStart,
    LineEnd,
    TextStart,
    TextEnd,
    LineUp,
    LineDown,
    PageUp,
    PageDown,
    // These leave the text as it is.
    SelectAll,
    Copy,
    // A locked box refuses the rest.
    Type,
    BreakLine,
    EraseBack,
    EraseForward,
    EraseWordBack,
    EraseWordForward,
    EraseSelection,
    Cut,
    Paste,
    Undo,
    Redo
};

constexpr bool moves(EditAction action) { return action >= EditAction::Left && action <= EditAction::PageDown; }
constexpr bool edits(EditAction action) { return action >= EditAction::Type; }

/// For a character that key-press handlers have let through, whether typed or a control character.
EditAction actionFor(char32_t character, Modifiers modifiers);

/// For a stroke without a character.
EditAction actionFor(const KeyStroke& stroke);

/// Whether a shortcut of the window with this key would take something away from the box.
bool claimsKey(const KeyStroke& stroke, bool locked);

}  // namespace kel
