#pragma once

#include <cstdint>

#include "values/Text.h"

/// Keys as the controls see them: virtual key codes for key-down, character codes for key-press.
namespace kel {

namespace keys {
inline constexpr std::int16_t Backspace = 8;
inline constexpr std::int16_t Tab = 9;
inline constexpr std::int16_t Enter = 13;
inline constexpr std::int16_t Escape = 27;
inline constexpr std::int16_t Space = 32;
inline constexpr std::int16_t PageUp = 33;
inline constexpr std::int16_t PageDown = 34;
inline constexpr std::int16_t End = 35;
inline constexpr std::int16_t Home = 36;
inline constexpr std::int16_t Left = 37;
inline constexpr std::int16_t Up = 38;
inline constexpr std::int16_t Right = 39;
inline constexpr std::int16_t Down = 40;
inline constexpr std::int16_t Insert = 45;
inline constexpr std::int16_t Delete = 46;
inline constexpr std::int16_t Decimal = 110;  ///< the numeric keypad's decimal key
inline constexpr std::int16_t F4 = 115;
inline constexpr std::int16_t Packet = 231;  ///< a character that comes from no key of its own
/// The character that Ctrl and Backspace make, and the Delete key on some systems.
inline constexpr char32_t DeleteCharacter = 127;
}  // namespace keys

/// Modifier keys held down, as a sum.
enum Modifiers : std::uint8_t { NoModifier = 0, ShiftKey = 1, ControlKey = 2, AltKey = 4 };

constexpr Modifiers operator|(Modifiers left, Modifiers right) {
    return static_cast<Modifiers>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}

enum class MouseButton : std::uint8_t { Left = 1, Right = 2, Middle = 4 };

/// A key stroke on its way into a field, the same on every home.
struct KeyStroke {
    std::int16_t code = 0;   ///< virtual key code; 0 when only the character is known (an input method)
    char32_t character = 0;  ///< what the layout makes of it; 0 for a key without a character
    Modifiers modifiers = NoModifier;
};

/// The Insert key alone switches between inserting and overwriting; with another key held it copies or pastes.
constexpr bool togglesOverwriting(std::int16_t code, Modifiers modifiers) {
    return code == keys::Insert && modifiers == NoModifier;
}

/// Tab goes on to the next field, with Shift to the one before. With Ctrl it is an ordinary key; with Alt it is for
/// another program.
constexpr bool leavesField(const KeyStroke& stroke) {
    return stroke.code == keys::Tab && (stroke.modifiers & (ControlKey | AltKey)) == 0;
}

/// A letter with Alt is that of a mnemonic; with Ctrl as well it is typed by AltGr.
constexpr bool seeksMnemonic(const KeyStroke& stroke) {
    return stroke.character != 0 && (stroke.modifiers & (ControlKey | AltKey)) == AltKey;
}

/// A character, or a control character that means something to a field. Tab and deleting go by their keys; half of a
/// pair is no character.
constexpr bool canBeStruck(char32_t character) {
    return character != 0 && character != keys::Tab && character != keys::DeleteCharacter && !isHalfPair(character);
}

/// The stroke that types `character`, or gives a control character as terminals send them.
KeyStroke strokeFor(char32_t character);

/// The character code that a stroke hands to key-press handlers, 0 when it gives none: Ctrl+V is 22, Enter
/// 13, Backspace 8, Escape 27; arrows, Delete and Insert give none, nor does Ctrl+Backspace, which deletes
/// a word.
char32_t keyPressCharacter(const KeyStroke& stroke);

}  // namespace kel
