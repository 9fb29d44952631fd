#include "host/editing/EditBuffer.h"

#include <algorithm>
#include <limits>

#include "values/Text.h"
#include "values/TextBoundaries.h"

namespace kel {

namespace {

constexpr std::u16string_view LineBreak = u"\r\n";
constexpr std::u16string_view LineEnds = u"\r\n\u2029";

std::size_t clamped(std::ptrdiff_t position, std::size_t size) {
    return position <= 0 ? 0 : std::min(static_cast<std::size_t>(position), size);
}

/// A text that was copied with the line end in front of it is wanted all the same.
std::u16string_view firstLine(std::u16string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(LineBreak), text.size()));
    return text.substr(0, text.find_first_of(LineBreak));
}

/// Line ends of every kind as line breaks.
std::u16string withLineBreaks(std::u16string_view text) {
    std::u16string lines;
    lines.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(LineEnds, at), text.size());
        lines.append(text, at, end - at);
        if (end == text.size()) break;
        lines.append(LineBreak);
        at = end + (text.substr(end).starts_with(LineBreak) ? LineBreak.size() : 1);
    }
    return lines;
}

}  // namespace

std::u16string_view EditBuffer::selectedText() const {
    return std::u16string_view(Text_).substr(Selection_.start(), Selection_.length());
}

TextLine EditBuffer::lineAt(std::size_t position) const {
    const std::size_t end = lineEnd(Text_, position, MultiLine_);
    const bool isLast = end == Text_.size();
    return {lineStart(Text_, position, MultiLine_), end, isLast ? end : end + LineBreak.size(), isLast};
}

// ---- By code

bool EditBuffer::put(std::u16string_view text) {
    const bool differs = Text_ != text;
    if (differs) Text_.assign(text);
    History_.clear();
    select({});
    return differs;
}

bool EditBuffer::insert(std::u16string_view text) { return replaceSelection(EditKind::Single, text); }

void EditBuffer::placeCaret(std::ptrdiff_t position) { moveCaret(clamped(position, Text_.size()), false); }

void EditBuffer::selectLength(std::ptrdiff_t length) {
    const std::size_t start = Selection_.start();
    select({start, snapped(start + clamped(length, Text_.size() - start))});
}

// ---- Moving

std::size_t EditBuffer::wordLeft() const { return Masked_ ? 0 : previousWord(Text_, Selection_.caret, MultiLine_); }

std::size_t EditBuffer::wordRight() const {
    return Masked_ ? Text_.size() : nextWord(Text_, Selection_.caret, MultiLine_);
}

std::size_t EditBuffer::destination(EditAction motion, const TextLines& view) const {
    switch (motion) {
        case EditAction::Left: return previousCharacter(Text_, Selection_.caret, MultiLine_);
        case EditAction::Right: return nextCharacter(Text_, Selection_.caret, MultiLine_);
        case EditAction::WordLeft: return wordLeft();
        case EditAction::WordRight: return wordRight();
        case EditAction::LineStart: return MultiLine_ ? view.lineAt(Selection_.caret).start : 0;
        case EditAction::LineEnd: return MultiLine_ ? view.lineAt(Selection_.caret).end : Text_.size();
        case EditAction::TextStart: return 0;
        case EditAction::TextEnd: return Text_.size();
        default: return Selection_.caret;
    }
}

void EditBuffer::move(EditAction motion, bool extend, const TextLines& view) {
    const bool collapses = !extend && !Selection_.empty();
    if (collapses && motion == EditAction::Left)
        moveCaret(Selection_.start(), false);
    else if (collapses && motion == EditAction::Right)
        moveCaret(Selection_.end(), false);
    else
        moveCaret(destination(motion, view), extend);
}

std::size_t EditBuffer::columnIn(const TextLine& line, std::size_t position) const {
    std::size_t column = 0;
    for (std::size_t at = line.start; at < position; at = characterEnd(Text_, at, true)) ++column;
    return column;
}

std::size_t EditBuffer::atColumn(const TextLine& line, std::size_t column) const {
    std::size_t at = line.start;
    for (; column > 0 && at < line.end; --column) at = characterEnd(Text_, at, true);
    return at;
}

void EditBuffer::moveLines(std::ptrdiff_t lines, bool extend, const TextLines& view) {
    if (!MultiLine_) return;
    beginStep();
    const TextLine from = view.lineAt(Selection_.caret);
    TextLine line = from;
    for (; lines < 0 && line.start > 0; ++lines) line = view.lineAt(previousCharacter(Text_, line.start, true));
    for (; lines > 0 && !line.isLast; --lines) line = view.lineAt(line.next);
    if (line.start == from.start) return;
    const std::size_t column = Column_ == NoColumn ? columnIn(from, Selection_.caret) : Column_;
    moveCaret(atColumn(line, column), extend);
    Column_ = column;
}

void EditBuffer::selectAll() { select({0, Text_.size()}); }

std::size_t EditBuffer::snapped(std::size_t position) const { return snapDown(Text_, position, MultiLine_); }

void EditBuffer::moveCaret(std::size_t position, bool extend) {
    const std::size_t caret = snapped(position);
    select({extend ? Selection_.anchor : caret, caret});
}

void EditBuffer::select(const Selection& selection) {
    Column_ = NoColumn;
    if (selection == Selection_) return;
    Selection_ = selection;
    History_.endRun();
}

// ---- Editing

std::size_t EditBuffer::room() const {
    if (Maximum_ == 0) return std::numeric_limits<std::size_t>::max();
    const std::size_t kept = Text_.size() - Selection_.length();
    return Maximum_ > kept ? Maximum_ - kept : 0;
}

std::u16string_view EditBuffer::fitting(std::u16string_view text) const {
    return text.substr(0, snapDown(text, std::min(text.size(), room()), MultiLine_));
}

bool EditBuffer::edit(EditAction action, char32_t character) {
    const std::size_t caret = Selection_.caret;
    switch (action) {
        case EditAction::Type: return type(character);
        case EditAction::BreakLine:
            return MultiLine_ && LineBreak.size() <= room() && replaceSelection(EditKind::Single, LineBreak);
        case EditAction::EraseBack: return erase(EditKind::Backspace, previousCodePoint(Text_, caret, MultiLine_));
        case EditAction::EraseForward: return erase(EditKind::Delete, nextCodePoint(Text_, caret, MultiLine_));
        case EditAction::EraseWordBack: return erase(EditKind::Single, wordLeft());
        case EditAction::EraseWordForward: return erase(EditKind::Single, wordRight());
        case EditAction::EraseSelection: return replaceSelection(EditKind::Single, {});
        case EditAction::Undo: return carryOut(History_.undo());
        case EditAction::Redo: return carryOut(History_.redo());
        default: return false;
    }
}

bool EditBuffer::type(char32_t character) {
    std::u16string units;
    appendCodePoint(units, character);
    return units.size() <= room() && replaceSelection(EditKind::Typing, units);
}

std::u16string EditBuffer::pasted(std::u16string_view text) const {
    return MultiLine_ ? withLineBreaks(text) : std::u16string(firstLine(text));
}

bool EditBuffer::paste(std::u16string_view text) { return replaceSelection(EditKind::Single, fitting(text)); }

bool EditBuffer::erase(EditKind kind, std::size_t reach) {
    if (!Selection_.empty()) return replaceSelection(kind, {});
    return replace(kind, std::min(Selection_.caret, reach), std::max(Selection_.caret, reach), {});
}

bool EditBuffer::replaceSelection(EditKind kind, std::u16string_view inserted) {
    return replace(kind, Selection_.start(), Selection_.end(), inserted);
}

bool EditBuffer::replace(EditKind kind, std::size_t from, std::size_t to, std::u16string_view inserted) {
    const std::u16string_view removed = std::u16string_view(Text_).substr(from, to - from);
    const bool differs = removed != inserted;
    if (differs) {
        History_.record(kind, from, removed, inserted, Selection_);
        Text_.replace(from, removed.size(), inserted);
    }
    const std::size_t after = snapped(from + inserted.size());
    // The caret goes along with the edit: that alone ends no run of typing.
    if (differs) {
        Selection_ = {after, after};
        Column_ = NoColumn;
    } else {
        select({after, after});
    }
    return differs;
}

bool EditBuffer::carryOut(const std::optional<EditHistory::Replacement>& replacement) {
    Column_ = NoColumn;
    if (!replacement) return false;
    Text_.replace(replacement->position, replacement->length, replacement->text);
    Selection_ = {snapped(replacement->after.anchor), snapped(replacement->after.caret)};
    return replacement->changesText;
}

}  // namespace kel
