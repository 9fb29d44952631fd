#include "host/Keys.h"

namespace kel {

KeyStroke strokeFor(char32_t character) {
    switch (character) {
        case keys::Backspace:
        case keys::Tab:
        case keys::Enter:
        case keys::Escape: return {static_cast<std::int16_t>(character)};
        case 0x7F: return {keys::Backspace};
        default: break;
    }
    if (character < U' ') return {static_cast<std::int16_t>(character + 'A' - 1), 0, ControlKey};
    const auto code = [character]() -> char32_t {
        if (character >= U'a' && character <= U'z') return character - U'a' + U'A';
        const bool ownKey = (character >= U'A' && character <= U'Z') || (character >= U'0' && character <= U'9');
        return ownKey || character == U' ' ? character : static_cast<char32_t>(keys::Packet);
    };
    const bool shifted = character >= U'A' && character <= U'Z';
    return {static_cast<std::int16_t>(code()), character, shifted ? ShiftKey : NoModifier};
}

char32_t keyPressCharacter(const KeyStroke& stroke) {
    const bool control = (stroke.modifiers & ControlKey) != 0;
    const bool alt = (stroke.modifiers & AltKey) != 0;
    if (control && !alt) {
        if (stroke.code >= 'A' && stroke.code <= 'Z') return static_cast<char32_t>(stroke.code - 'A' + 1);
        return 0;
    }
    // Ctrl and Alt together are AltGr, which types; Alt alone is a mnemonic.
    if (alt && !control) return 0;
    switch (stroke.code) {
        case keys::Backspace:
        case keys::Enter:
        case keys::Escape: return static_cast<char32_t>(stroke.code);
        case keys::Tab: return 0;
        default: break;
    }
    return stroke.character >= U' ' && stroke.character != 0x7F ? stroke.character : 0;
}

}  // namespace kel
