#include "platform/qt/EditBox.h"

#include <algorithm>
#include <limits>
#include <QGuiApplication>

#include "values/Text.h"

namespace kel::qt {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";

std::size_t clamped(std::int32_t position, std::int32_t end) {
    return static_cast<std::size_t>(std::clamp(position, 0, end));
}

bool movesByLine(EditAction action) { return action >= EditAction::LineUp && action <= EditAction::PageDown; }

bool hasClipboardText() { return !QGuiApplication::clipboard()->text().isEmpty(); }

}  // namespace

// ---- By code

void EditBox::setText(std::u16string_view text) {
    History_.clear();
    if (textEquals(text)) {
        setSelection({});
        return;
    }
    {
        const EditScope scope(Editing_);
        replaceAll(text);
    }
    Listener_.Text1_Change();
}

void EditBox::setSelStart(std::int32_t position) {
    const std::size_t caret = snapped(clamped(position, textLength()));
    setSelection({caret, caret});
}

void EditBox::setSelLength(std::int32_t length) {
    const std::size_t start = selection().start();
    const auto rest = static_cast<std::int32_t>(static_cast<std::size_t>(textLength()) - start);
    setSelection({start, snapped(start + clamped(length, rest))});
}

std::u16string EditBox::selText() const {
    const Selection selected = selection();
    return selected.empty() ? std::u16string() : textBetween(selected.start(), selected.end());
}

void EditBox::setSelText(std::u16string_view text) { replaceSelection(EditKind::Single, text); }

void EditBox::setSelection(const Selection& wanted) {
    if (wanted == selection()) return;
    select(wanted);
    History_.endRun();
}

// ---- Edits

std::size_t EditBox::room() const {
    if (MaxLength_ == 0) return std::numeric_limits<std::size_t>::max();
    const std::size_t kept = static_cast<std::size_t>(textLength()) - selection().length();
    const auto maximum = static_cast<std::size_t>(MaxLength_);
    return maximum > kept ? maximum - kept : 0;
}

void EditBox::edit(EditKind kind, std::size_t start, std::size_t end, std::u16string_view text) {
    const std::u16string removed = start == end ? std::u16string() : textBetween(start, end);
    if (removed == text) {
        const std::size_t behind = snapped(end);
        setSelection({behind, behind});
        return;
    }
    History_.record(kind, start, removed, text, selection());
    {
        const EditScope scope(Editing_);
        replace(start, end, text);
    }
    Listener_.Text1_Change();
}

void EditBox::replaceSelection(EditKind kind, std::u16string_view text) {
    const Selection selected = selection();
    edit(kind, selected.start(), selected.end(), text);
}

void EditBox::takeBack(const std::optional<EditHistory::Replacement>& replacement) {
    if (!replacement) return;
    {
        const EditScope scope(Editing_);
        replace(replacement->position, replacement->position + replacement->length, replacement->text);
        select({snapped(replacement->after.anchor), snapped(replacement->after.caret)});
    }
    if (replacement->changesText) Listener_.Text1_Change();
}

void EditBox::textChangedInWidget() {
    if (Editing_) return;
    History_.clear();
    Listener_.Text1_Change();
}

// ---- Actions

bool EditBox::offers(EditAction action) const {
    if (edits(action) && locked()) return false;
    switch (action) {
        case EditAction::Undo: return History_.canUndo();
        case EditAction::Redo: return History_.canRedo();
        case EditAction::Cut:
        case EditAction::Copy: return !isPassword() && !selection().empty();
        case EditAction::EraseSelection: return !selection().empty();
        case EditAction::Paste: return hasClipboardText();
        case EditAction::SelectAll: return selLength() < textLength();
        default: return true;
    }
}

bool EditBox::perform(EditAction action) { return act(action, 0, false); }

bool EditBox::act(EditAction action, char32_t character, bool extend) {
    if (edits(action) && locked()) return false;
    if (moves(action)) {
        if (movesByLine(action) && !multiLine()) return false;
        moveCaret(action, extend);
        return true;
    }
    switch (action) {
        case EditAction::SelectAll: setSelection({0, static_cast<std::size_t>(textLength())}); break;
        case EditAction::Copy: copy(); break;
        case EditAction::Type: type(character); break;
        case EditAction::BreakLine:
            if (!multiLine()) return false;
            breakLine();
            break;
        case EditAction::EraseBack: erase(EditKind::Backspace, previousCodePoint(selection().caret)); break;
        case EditAction::EraseForward: erase(EditKind::Delete, nextCodePoint(selection().caret)); break;
        case EditAction::EraseWordBack:
            erase(EditKind::Single, destination(EditAction::WordLeft, selection().caret));
            break;
        case EditAction::EraseWordForward:
            erase(EditKind::Single, destination(EditAction::WordRight, selection().caret));
            break;
        case EditAction::EraseSelection: replaceSelection(EditKind::Single, {}); break;
        case EditAction::Cut: cut(); break;
        case EditAction::Paste: paste(QGuiApplication::clipboard()->text()); break;
        case EditAction::Undo: takeBack(History_.undo()); break;
        case EditAction::Redo: takeBack(History_.redo()); break;
        default: return false;
    }
    return true;
}

void EditBox::moveCaret(EditAction action, bool extend) {
    if (movesByLine(action)) {
        moveByLine(action, extend);
        History_.endRun();
        return;
    }
    const Selection selected = selection();
    const bool collapses = !extend && !selected.empty();
    std::size_t caret = 0;
    if (collapses && action == EditAction::Left)
        caret = selected.start();
    else if (collapses && action == EditAction::Right)
        caret = selected.end();
    else
        caret = snapped(destination(action, selected.caret));
    setSelection({extend ? selected.anchor : caret, caret});
}

void EditBox::type(char32_t character) {
    char16_t units[2] = {static_cast<char16_t>(character), 0};
    std::size_t count = 1;
    if (character > 0xFFFF) {
        units[0] = QChar::highSurrogate(character);
        units[1] = QChar::lowSurrogate(character);
        count = 2;
    }
    if (count <= room()) replaceSelection(EditKind::Typing, {units, count});
}

void EditBox::breakLine() {
    if (LineBreak.size() <= room()) replaceSelection(EditKind::Single, LineBreak);
}

void EditBox::erase(EditKind kind, std::size_t reach) {
    const Selection selected = selection();
    if (selected.empty())
        edit(kind, std::min(selected.caret, reach), std::max(selected.caret, reach), {});
    else
        edit(kind, selected.start(), selected.end(), {});
}

void EditBox::copy() const {
    if (isPassword() || selection().empty()) return;
    QString text = toQString(selText());
    // Programs here expect single line feeds.
    if (multiLine()) text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QGuiApplication::clipboard()->setText(text);
}

void EditBox::cut() {
    if (isPassword()) return;
    copy();
    replaceSelection(EditKind::Single, {});
}

void EditBox::paste(QStringView text) {
    const std::u16string wanted = pasteable(text);
    std::u16string_view fitting = headOf(wanted, room());
    // Half a line break is none.
    if (multiLine() && fitting.size() < wanted.size() && fitting.ends_with(u'\r')) fitting.remove_suffix(1);
    replaceSelection(EditKind::Single, fitting);
}

}  // namespace kel::qt
