#include "host/editing/EditAction.h"

namespace kel {

namespace {

constexpr char32_t controlCharacter(char letter) { return static_cast<char32_t>(letter - 'A' + 1); }

EditAction caretAction(std::int16_t code, bool control) {
    switch (code) {
        case keys::Left: return control ? EditAction::WordLeft : EditAction::Left;
        case keys::Right: return control ? EditAction::WordRight : EditAction::Right;
        case keys::Home: return control ? EditAction::TextStart : EditAction::LineStart;
        case keys::End: return control ? EditAction::TextEnd : EditAction::LineEnd;
        case keys::Up: return control ? EditAction::None : EditAction::LineUp;
        case keys::Down: return control ? EditAction::None : EditAction::LineDown;
        case keys::PageUp: return control ? EditAction::None : EditAction::PageUp;
        case keys::PageDown: return control ? EditAction::None : EditAction::PageDown;
        default: return EditAction::None;
    }
}

}  // namespace

EditAction actionFor(char32_t character, Modifiers modifiers) {
    switch (character) {
        case keys::Backspace: return EditAction::EraseBack;
        case keys::Enter: return EditAction::BreakLine;
        case controlCharacter('A'): return EditAction::SelectAll;
        case controlCharacter('C'): return EditAction::Copy;
        case controlCharacter('V'): return EditAction::Paste;
        case controlCharacter('X'): return EditAction::Cut;
        case controlCharacter('Y'): return EditAction::Redo;
        case controlCharacter('Z'): return (modifiers & ShiftKey) != 0 ? EditAction::Redo : EditAction::Undo;
        default: break;
    }
    const bool printable = character >= U' ' && character != 0x7F && character <= 0x10FFFF;
    return printable ? EditAction::Type : EditAction::None;
}

EditAction actionFor(const KeyStroke& stroke) {
    if ((stroke.modifiers & AltKey) != 0) return EditAction::None;
    const bool control = stroke.modifiers == ControlKey;
    const bool shift = stroke.modifiers == ShiftKey;
    switch (stroke.code) {
        case keys::Delete:
            if (stroke.modifiers == NoModifier) return EditAction::EraseForward;
            if (control) return EditAction::EraseWordForward;
            return shift ? EditAction::Cut : EditAction::None;
        case keys::Insert:
            if (control) return EditAction::Copy;
            return shift ? EditAction::Paste : EditAction::None;
        case keys::Backspace: return control ? EditAction::EraseWordBack : EditAction::None;
        default: return caretAction(stroke.code, (stroke.modifiers & ControlKey) != 0);
    }
}

bool claimsKey(const KeyStroke& stroke, bool locked) {
    const char32_t character = keyPressCharacter(stroke);
    const EditAction action = character != 0 ? actionFor(character, stroke.modifiers) : actionFor(stroke);
    if (action != EditAction::None) return !locked || !edits(action);
    return togglesOverwriting(stroke.code, stroke.modifiers);
}

}  // namespace kel
