#include "platform/headless/HeadlessTextBox.h"

#include <algorithm>

namespace kel::headless {

namespace {
constexpr double LineTwipsPerPoint = 24;  ///< 20 twips a point, and the gap between lines
}

void HeadlessTextBox::setMaxLength(std::int32_t units) {
    Buffer_.setMaximum(static_cast<std::size_t>(std::max(units, 0)));
}

void HeadlessTextBox::setPasswordChar(char16_t character) {
    PasswordChar_ = character;
    Buffer_.setMasked(isPassword());
}

void HeadlessTextBox::strike(const KeyStroke& stroke) {
    if (stroke.code != 0) {
        std::int16_t code = stroke.code;
        Listener_.Text1_KeyDown(code, stroke.modifiers);
        if (code == 0 || !takesInput()) return;
    }
    char32_t character = keyPressCharacter(stroke);
    if (character == 0) {
        perform(actionFor(stroke), 0, (stroke.modifiers & ShiftKey) != 0);
        return;
    }
    Listener_.Text1_KeyPress(character);
    if (character != 0 && takesInput()) perform(actionFor(character, stroke.modifiers), character, false);
}

void HeadlessTextBox::perform(EditAction action, char32_t character, bool extend) {
    switch (action) {
        case EditAction::None: break;
        case EditAction::LineUp: Buffer_.moveLines(-1, extend); break;
        case EditAction::LineDown: Buffer_.moveLines(1, extend); break;
        case EditAction::PageUp: Buffer_.moveLines(-linesOfPage(), extend); break;
        case EditAction::PageDown: Buffer_.moveLines(linesOfPage(), extend); break;
        case EditAction::SelectAll: Buffer_.selectAll(); break;
        case EditAction::Copy: copy(); break;
        default:
            if (moves(action))
                Buffer_.move(action, extend);
            else if (!Locked_)
                tell(edit(action, character));
    }
}

bool HeadlessTextBox::edit(EditAction action, char32_t character) {
    switch (action) {
        case EditAction::Type: return Buffer_.type(character);
        case EditAction::BreakLine: return Buffer_.breakLine();
        case EditAction::EraseBack: return Buffer_.eraseBack();
        case EditAction::EraseForward: return Buffer_.eraseForward();
        case EditAction::EraseWordBack: return Buffer_.eraseWordBack();
        case EditAction::EraseWordForward: return Buffer_.eraseWordForward();
        case EditAction::Cut: return cut();
        case EditAction::Paste: return Buffer_.paste(seat().input.Clipboard);
        case EditAction::Undo: return Buffer_.undo();
        case EditAction::Redo: return Buffer_.redo();
        default: return false;
    }
}

void HeadlessTextBox::copy() {
    if (!isPassword() && !Buffer_.selection().empty()) seat().input.Clipboard.assign(Buffer_.selectedText());
}

bool HeadlessTextBox::cut() {
    if (isPassword()) return false;
    copy();
    return Buffer_.eraseSelection();
}

std::ptrdiff_t HeadlessTextBox::linesOfPage() const {
    const double lineHeight = std::max(fontSize(), 1.0) * LineTwipsPerPoint;
    return std::max<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(bounds().height / lineHeight), 1);
}

void HeadlessTextBox::click(std::int32_t position) {
    Buffer_.placeCaret(position);
    Buffer_.beginStep();
    Listener_.Text1_MouseDown(MouseButton::Left);
    if (takesInput()) Listener_.Text1_Click();
}

void HeadlessTextBox::rightClick() {
    Buffer_.beginStep();
    Listener_.Text1_MouseDown(MouseButton::Right);
}

}  // namespace kel::headless
