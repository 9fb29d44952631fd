#include "host/editing/TextBoxEditor.h"

#include <algorithm>
#include <utility>

#include "values/Text.h"

namespace kel {

// ---- By code

void TextBoxEditor::setSelStart(std::int32_t position) {
    Buffer_.placeCaret(position);
    Surroundings_.bufferChanged();
}

void TextBoxEditor::setSelLength(std::int32_t length) {
    Buffer_.selectLength(length);
    Surroundings_.bufferChanged();
}

void TextBoxEditor::setMaxLength(std::int32_t units) {
    Buffer_.setMaximum(static_cast<std::size_t>(std::max(units, 0)));
}

void TextBoxEditor::setPasswordChar(char32_t character) {
    PasswordChar_ = character;
    Buffer_.setMasked(isPassword());
}

void TextBoxEditor::tell(bool changed) {
    Surroundings_.bufferChanged();
    if (changed) Listener_.Text1_Change();
}

// ---- Keys

bool TextBoxEditor::strike(const KeyStroke& stroke) {
    if (stroke.code != 0) {
        std::int16_t code = stroke.code;
        Listener_.Text1_KeyDown(code, stroke.modifiers);
        if (code == 0 || !Surroundings_.takesInput()) return true;
    }
    const char32_t character = keyPressCharacter(stroke);
    if (character != 0) return strikeCharacter(character, stroke.modifiers);
    return act(actionFor(stroke), 0, (stroke.modifiers & ShiftKey) != 0);
}

bool TextBoxEditor::strikeCharacter(char32_t character, Modifiers modifiers) {
    Listener_.Text1_KeyPress(character);
    if (character == 0 || !Surroundings_.takesInput()) return true;
    return act(actionFor(character, modifiers), character, false);
}

void TextBoxEditor::typeCommitted(std::u16string_view text) {
    while (!text.empty() && !Locked_ && Surroundings_.takesInput()) strikeCharacter(takeCodePoint(text), NoModifier);
}

// ---- Actions

bool TextBoxEditor::offers(EditAction action) const {
    if (edits(action) && Locked_) return false;
    switch (action) {
        case EditAction::Undo: return Buffer_.canUndo();
        case EditAction::Redo: return Buffer_.canRedo();
        case EditAction::Cut:
        case EditAction::Copy: return !isPassword() && !Buffer_.selection().empty();
        case EditAction::EraseSelection: return !Buffer_.selection().empty();
        case EditAction::SelectAll: return Buffer_.selection().length() < Buffer_.text().size();
        default: return true;
    }
}

/// False when the action is none of this box.
bool TextBoxEditor::act(EditAction action, char32_t character, bool extend) {
    if (moves(action)) return moveCaret(action, extend);
    if (edits(action)) {
        if (Locked_ || (action == EditAction::BreakLine && !Buffer_.multiLine())) return false;
        Listener_.Text1_Edit(action);
        tell(edit(action, character));
        return true;
    }
    switch (action) {
        case EditAction::SelectAll:
            Buffer_.selectAll();
            Surroundings_.bufferChanged();
            return true;
        case EditAction::Copy: copy(); return true;
        default: return false;
    }
}

const TextLines& TextBoxEditor::lines() const {
    const TextLines* const seen = Surroundings_.lines();
    return seen != nullptr ? *seen : Buffer_;
}

bool TextBoxEditor::moveCaret(EditAction action, bool extend) {
    const auto byLines = [&](std::ptrdiff_t count) {
        Buffer_.moveLines(count, extend, lines());
        return Buffer_.multiLine();
    };
    const auto carriedOut = [&] {
        switch (action) {
            case EditAction::LineUp: return byLines(-1);
            case EditAction::LineDown: return byLines(1);
            case EditAction::PageUp: return byLines(-Surroundings_.linesOfPage());
            case EditAction::PageDown: return byLines(Surroundings_.linesOfPage());
            default: Buffer_.move(action, extend, lines()); return true;
        }
    }();
    if (carriedOut) Surroundings_.bufferChanged();
    return carriedOut;
}

bool TextBoxEditor::edit(EditAction action, char32_t character) {
    switch (action) {
        case EditAction::Type: return Buffer_.type(character);
        case EditAction::BreakLine: return Buffer_.breakLine();
        case EditAction::EraseBack: return Buffer_.eraseBack();
        case EditAction::EraseForward: return Buffer_.eraseForward();
        case EditAction::EraseWordBack: return Buffer_.eraseWordBack();
        case EditAction::EraseWordForward: return Buffer_.eraseWordForward();
        case EditAction::EraseSelection: return Buffer_.eraseSelection();
        case EditAction::Cut: return cut();
        case EditAction::Paste: return insertPasted(Surroundings_.clipboardText());
        case EditAction::Undo: return Buffer_.undo();
        case EditAction::Redo: return Buffer_.redo();
        default: return false;
    }
}

void TextBoxEditor::paste(std::u16string_view text) {
    if (Locked_) return;
    Listener_.Text1_Edit(EditAction::Paste);
    tell(insertPasted(text));
}

bool TextBoxEditor::insertPasted(std::u16string_view foreign) {
    std::u16string text = Buffer_.pasted(foreign);
    const bool wanted = Listener_.Text1_Paste(text) && !Locked_ && Surroundings_.takesInput();
    return wanted && Buffer_.paste(text);
}

void TextBoxEditor::copy() {
    if (!isPassword() && !Buffer_.selection().empty()) Surroundings_.setClipboardText(Buffer_.selectedText());
}

bool TextBoxEditor::cut() {
    if (isPassword()) return false;
    copy();
    return Buffer_.eraseSelection();
}

// ---- Mouse

void TextBoxEditor::select(const Selection& selection) {
    Buffer_.take(selection);
    Surroundings_.bufferChanged();
}

void TextBoxEditor::pressMouse(MouseButton button) {
    Buffer_.beginStep();
    Listener_.Text1_MouseDown(button);
}

void TextBoxEditor::click() {
    if (Surroundings_.takesInput()) Listener_.Text1_Click();
}

}  // namespace kel
