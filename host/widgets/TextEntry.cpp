#include "host/widgets/TextEntry.h"

#include <algorithm>
#include <utility>

#include "values/Text.h"
#include "values/TextBoundaries.h"

namespace kel {

namespace {

/// Without the blanks after it.
Selection wordAt(std::u16string_view text, std::size_t position) {
    const std::size_t start = previousWord(text, nextCharacter(text, position, true), true);
    std::size_t end = nextWord(text, start, true);
    while (end > start + 1 && text[end - 1] == u' ') --end;
    return {start, end};
}

}  // namespace

// ---- By code

void TextEntry::setSelStart(std::int32_t position) {
    Buffer_.placeCaret(position);
    changed(Change::Selection);
}

void TextEntry::setSelLength(std::int32_t length) {
    Buffer_.selectLength(length);
    changed(Change::Selection);
}

void TextEntry::setMaxLength(std::int32_t units) { Buffer_.setMaximum(static_cast<std::size_t>(std::max(units, 0))); }

void TextEntry::hideBy(char32_t character) {
    change(PasswordChar_, character, Change::Password);
    Buffer_.setMasked(isPassword());
}

/// The view first: the listener may want to know what stands where.
void TextEntry::tell(bool differs) {
    changed(differs ? Change::Text | Change::Selection : Changes(Change::Selection));
    if (differs) Listener_.Text1_Change();
}

void TextEntry::tellEdited(bool differs) {
    tell(differs);
    if (differs) Listener_.Text1_Edited();
}

// ---- Keys

bool TextEntry::strike(const KeyStroke& stroke) {
    if (leavesField(stroke) || !takesInput()) return false;
    if (stroke.code != 0) {
        std::int16_t code = stroke.code;
        Listener_.Text1_KeyDown(code, stroke.modifiers);
        if (code == 0 || !takesInput()) return true;
    }
    const char32_t character = keyPressCharacter(stroke);
    if (character != 0) return strikeCharacter(character, stroke.modifiers);
    return act(inReadingOrder(actionFor(stroke)), 0, (stroke.modifiers & ShiftKey) != 0);
}

bool TextEntry::strike(const KeyStroke& stroke, std::u16string_view further) {
    const bool used = strike(stroke);
    if (keyPressCharacter(stroke) >= U' ') typeCommitted(further);
    return used;
}

bool TextEntry::strikeCharacter(char32_t character, Modifiers modifiers) {
    if (!canBeStruck(character) || !takesInput()) return false;
    Listener_.Text1_KeyPress(character);
    if (character == 0 || !takesInput()) return true;
    return act(actionFor(character, modifiers), character, false);
}

void TextEntry::typeCommitted(std::u16string_view text) {
    while (!text.empty() && !Locked_ && takesInput()) strikeCharacter(takeCodePoint(text), NoModifier);
}

void TextEntry::commitOver(std::int32_t start, std::int32_t length, std::u16string_view text) {
    if (Locked_ || !takesInput()) return;
    if (length > 0) {
        setSelStart(static_cast<std::int32_t>(selection().caret) + start);
        setSelLength(length);
        if (text.empty()) perform(EditAction::EraseSelection);
    }
    typeCommitted(text);
}

/// Arrows lead to where they point, also in a text that runs the other way.
EditAction TextEntry::inReadingOrder(EditAction action) const {
    const bool steps = action == EditAction::Left || action == EditAction::Right;
    if (!steps || view() == nullptr || !view()->isMirrored()) return action;
    return action == EditAction::Left ? EditAction::Right : EditAction::Left;
}

// ---- Actions

void TextEntry::perform(EditAction action) {
    if (takesInput() || !edits(action)) act(action, 0, false);
}

bool TextEntry::offers(EditAction action) const {
    if (edits(action) && (Locked_ || !takesInput())) return false;
    switch (action) {
        case EditAction::Undo: return Buffer_.canUndo();
        case EditAction::Redo: return Buffer_.canRedo();
        case EditAction::Cut:
        case EditAction::Copy: return !isPassword() && !Buffer_.selection().empty();
        case EditAction::EraseSelection: return !Buffer_.selection().empty();
        case EditAction::Paste: return !host().clipboardText().empty();
        case EditAction::SelectAll: return Buffer_.selection().length() < Buffer_.text().size();
        default: return true;
    }
}

/// False when the action is none of this box.
bool TextEntry::act(EditAction action, char32_t character, bool extend) {
    if (moves(action)) return moveCaret(action, extend);
    if (edits(action)) {
        if (Locked_ || (action == EditAction::BreakLine && !Buffer_.multiLine())) return false;
        if (Listener_.Text1_Edit(action)) tellEdited(edit(action, character));
        return true;
    }
    switch (action) {
        case EditAction::SelectAll:
            Buffer_.selectAll();
            changed(Change::Selection);
            return true;
        case EditAction::Copy: copy(); return true;
        default: return false;
    }
}

const TextLines& TextEntry::lines() const {
    const TextLines* const seen = view() != nullptr ? view()->lines() : nullptr;
    return seen != nullptr ? *seen : Buffer_;
}

std::ptrdiff_t TextEntry::linesOfPage() const {
    if (view() != nullptr) return view()->linesOfPage();
    return std::max<std::ptrdiff_t>(bounds().height / extentUnseen(0).height, 1);
}

bool TextEntry::moveCaret(EditAction action, bool extend) {
    const auto byLines = [&](std::ptrdiff_t count) {
        Buffer_.moveLines(count, extend, lines());
        return Buffer_.multiLine();
    };
    const auto carriedOut = [&] {
        switch (action) {
            case EditAction::LineUp: return byLines(-1);
            case EditAction::LineDown: return byLines(1);
            case EditAction::PageUp: return byLines(-linesOfPage());
            case EditAction::PageDown: return byLines(linesOfPage());
            default: Buffer_.move(action, extend, lines()); return true;
        }
    }();
    if (carriedOut) changed(Change::Selection);
    return carriedOut;
}

bool TextEntry::edit(EditAction action, char32_t character) {
    switch (action) {
        case EditAction::Cut: return cut();
        case EditAction::Paste: return insertPasted(host().clipboardText());
        default: return Buffer_.edit(action, character);
    }
}

void TextEntry::paste(std::u16string_view text) {
    if (Locked_ || !takesInput()) return;
    if (Listener_.Text1_Edit(EditAction::Paste)) tellEdited(insertPasted(text));
}

void TextEntry::replaceSelection(std::u16string_view text) {
    if (Listener_.Text1_Edit(EditAction::Paste)) tellEdited(Buffer_.insert(text));
}

void TextEntry::write(std::size_t start, std::size_t end, std::u16string_view text) {
    if (!takesInput()) return;
    // No edit begins or ends within a line break or a pair.
    const std::size_t from = snapDown(this->text(), start, multiLine());
    const std::size_t kept = snapDown(this->text(), end, multiLine());
    const std::size_t to = kept < end ? nextCodePoint(this->text(), kept, multiLine()) : end;
    std::u16string whole = this->text().substr(from, start - from);
    whole.append(text).append(this->text(), end, to - end);
    const std::u16string before = this->text();
    const Selection selected = selection();
    Buffer_.take({from, to});
    if (whole.empty())
        perform(EditAction::EraseSelection);
    else
        paste(whole);
    if (this->text() == before) select(selected);
}

bool TextEntry::insertPasted(std::u16string_view foreign) {
    std::u16string text = Buffer_.pasted(foreign);
    const bool wanted = Listener_.Text1_Paste(text) && !Locked_ && takesInput();
    return wanted && Buffer_.paste(text);
}

void TextEntry::copy() {
    if (!isPassword() && !Buffer_.selection().empty()) host().setClipboardText(Buffer_.selectedText());
}

bool TextEntry::cut() {
    if (isPassword()) return false;
    copy();
    return Buffer_.edit(EditAction::EraseSelection, 0);
}

// ---- Mouse

void TextEntry::select(const Selection& selection) {
    Buffer_.take(selection);
    changed(Change::Selection);
}

void TextEntry::press(const MousePress& press) {
    if (press.button != MouseButton::Right) {
        if (press.extends)
            dragTo(press.position);
        else
            setSelStart(press.position);
        selectClicked(press.clicks);
    }
    pressMouse(press.button, press.clicks);
}

bool TextEntry::mayDrag(const MousePress& press) const {
    const bool isInSelection = press.position > selStart() && press.position < selStart() + selLength();
    const bool isPlain = press.button == MouseButton::Left && press.clicks == 1 && !press.extends;
    return isPlain && isInSelection && offers(EditAction::Copy);
}

void TextEntry::selectClicked(int clicks) {
    if (clicks < 2) return;
    const TextLine line = lines().lineAt(selection().caret);
    const Selection word = wordAt(text(), selection().caret);
    if (isPassword() || clicks > 2)
        select({line.start, line.end});
    else
        select({std::clamp(word.anchor, line.start, line.end), std::clamp(word.caret, line.start, line.end)});
}

void TextEntry::pressMouse(MouseButton button, int clicks) {
    LeftPressed_ = button == MouseButton::Left && clicks != 2;
    Buffer_.beginStep();
    Listener_.Text1_MouseDown(button);
}

void TextEntry::dragTo(std::int32_t position) {
    const auto end = static_cast<std::int32_t>(text().size());
    select({selection().anchor, static_cast<std::size_t>(std::clamp(position, 0, end))});
}

void TextEntry::releaseMouse(bool inside) {
    if (std::exchange(LeftPressed_, false) && inside && takesInput()) Listener_.Text1_Click();
}

void TextEntry::click(std::int32_t position) {
    press({.position = position});
    releaseMouse(true);
}

void TextEntry::clickAgain(std::int32_t position) {
    press({.position = position, .clicks = 2});
    releaseMouse(true);
}

bool TextEntry::turnWheelBy(std::int32_t turned) {
    if (turned == 0 || !hasFocus() || !takesInput() || !Listener_.Text1_UsesWheel()) return false;
    const bool turnedBack = (turned > 0) != (WheelRest_ > 0);
    WheelRest_ = turnedBack ? turned : WheelRest_ + turned;
    const std::int32_t notches = WheelRest_ / WheelNotch;
    WheelRest_ %= WheelNotch;
    if (notches != 0) Listener_.Text1_Wheel(notches);
    return true;
}

void TextEntry::gotFocus() {
    FieldWidget::gotFocus();
    Listener_.Text1_GotFocus();
}

void TextEntry::lostFocus() {
    FieldWidget::lostFocus();
    WheelRest_ = 0;
    LeftPressed_ = false;
    Listener_.Text1_LostFocus();
}

// ---- Drops

void TextEntry::drop(std::int32_t position, std::u16string_view text) {
    if (!takesDrop()) return;
    setSelStart(position);
    paste(text);
}

/// One edit of all that lies between, so that handlers see the text once and one undo takes it back.
void TextEntry::moveSelection(std::size_t place) {
    const Selection before = selection();
    if (Locked_ || (place >= before.start() && place <= before.end())) return;
    const bool back = place < before.start();
    const std::size_t start = back ? place : before.start();
    const std::size_t end = back ? before.end() : place;
    const std::u16string moved(Buffer_.selectedText());
    const std::u16string passed = text().substr(back ? place : before.end(), end - start - moved.size());
    std::u16string both = back ? moved + passed : passed + moved;
    const std::size_t caret = start + (back ? moved.size() : both.size());

    select({start, end});
    if (Listener_.Text1_Paste(both) && !Locked_ && takesInput()) {
        replaceSelection(both);
        select({caret, caret});
    } else {
        select(before);
    }
}

}  // namespace kel
