#include "platform/qt/QtPlainBox.h"

#include <algorithm>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextDocument>

#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/PlainText.h"
#include "values/TextBoundaries.h"

namespace kel::qt {

namespace {

/// So that text begins where it does in a single-line box, and one line of it fits into the lowest box.
constexpr int TextIndent = 3;

using Step = std::size_t (*)(std::u16string_view text, std::size_t position, bool multiLine);

/// A step inside a block; from its end into the next one.
int stepForward(const QTextDocument& document, int position, Step step) {
    const QTextBlock block = document.findBlock(position);
    const auto inBlock = static_cast<std::size_t>(position - block.position());
    const std::u16string text = plain::blockText(block);
    if (inBlock == text.size()) return block.next().isValid() ? block.next().position() : position;
    return block.position() + static_cast<int>(step(text, inBlock, false));
}

int stepBack(const QTextDocument& document, int position, Step step) {
    const QTextBlock block = document.findBlock(position);
    const auto inBlock = static_cast<std::size_t>(position - block.position());
    if (inBlock == 0) return position > 0 ? position - 1 : 0;
    return block.position() + static_cast<int>(step(plain::blockText(block), inBlock, false));
}

}  // namespace

QtPlainBox::QtPlainBox(ControlSite& site, TextBoxListener& listener, QWidget& parent)
    : QPlainTextEdit(&parent), EditBox(site, listener, *this) {
    setTabChangesFocus(true);
    document()->setUndoRedoEnabled(false);
    document()->setDocumentMargin(std::max(TextIndent - frameWidth(), 1));
    connect(this, &QPlainTextEdit::textChanged, this, [this] { textChangedInWidget(); });
}

// ---- Text and selection

std::u16string QtPlainBox::text() const { return plain::text(*document()); }

bool QtPlainBox::textEquals(std::u16string_view other) const { return plain::equals(*document(), other); }

std::int32_t QtPlainBox::textLength() const { return static_cast<std::int32_t>(plain::length(*document())); }

std::u16string QtPlainBox::textBetween(std::size_t start, std::size_t end) const {
    return plain::textBetween(*document(), start, end);
}

Selection QtPlainBox::selection() const {
    const QTextCursor cursor = textCursor();
    return {plain::toText(*document(), cursor.anchor()), plain::toText(*document(), cursor.position())};
}

void QtPlainBox::select(const Selection& selection) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(plain::toDocument(*document(), selection.anchor));
    cursor.setPosition(plain::toDocument(*document(), selection.caret), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void QtPlainBox::replace(std::size_t start, std::size_t end, std::u16string_view text) {
    plain::replace(*document(), start, end, text);
    const std::size_t behind = snapped(start + text.size());
    select({behind, behind});
}

void QtPlainBox::replaceAll(std::u16string_view text) { setPlainText(plain::encoded(text)); }

// ---- Places in the text

std::size_t QtPlainBox::snapped(std::size_t position) const {
    const int inDocument = plain::toDocument(*document(), position);
    const QTextBlock block = document()->findBlock(inDocument);
    const auto inBlock = static_cast<std::size_t>(inDocument - block.position());
    const int cut = static_cast<int>(inBlock - snapDown(viewOf(block.text()), inBlock, false));
    return plain::toText(*document(), inDocument - cut);
}

std::size_t QtPlainBox::nextCodePoint(std::size_t position) const {
    const int from = plain::toDocument(*document(), position);
    return plain::toText(*document(), stepForward(*document(), from, &kel::nextCodePoint));
}

std::size_t QtPlainBox::previousCodePoint(std::size_t position) const {
    const int from = plain::toDocument(*document(), position);
    return plain::toText(*document(), stepBack(*document(), from, &kel::previousCodePoint));
}

std::size_t QtPlainBox::destination(EditAction move, std::size_t position) const {
    const QTextDocument& content = *document();
    const int from = plain::toDocument(content, position);
    const bool mirrored = content.findBlock(from).textDirection() == Qt::RightToLeft;
    QTextCursor cursor = textCursor();
    cursor.setPosition(from);
    switch (move) {
        case EditAction::Left:
        case EditAction::Right:
            return plain::toText(content, (move == EditAction::Left) != mirrored
                                              ? stepBack(content, from, &previousCharacter)
                                              : stepForward(content, from, &nextCharacter));
        case EditAction::WordLeft: return plain::toText(content, stepBack(content, from, &previousWord));
        case EditAction::WordRight: return plain::toText(content, stepForward(content, from, &nextWord));
        case EditAction::LineStart: cursor.movePosition(QTextCursor::StartOfLine); break;
        case EditAction::LineEnd: cursor.movePosition(QTextCursor::EndOfLine); break;
        case EditAction::TextStart: return 0;
        default: return plain::length(content);
    }
    return plain::toText(content, cursor.position());
}

void QtPlainBox::moveByLine(EditAction move, bool extend) {
    const bool isUp = move == EditAction::LineUp || move == EditAction::PageUp;
    const bool isPage = move == EditAction::PageUp || move == EditAction::PageDown;
    const int page = std::max(viewport()->height() / fontMetrics().lineSpacing(), 1);
    QTextCursor cursor = textCursor();
    const auto mode = extend ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor;
    for (int lines = isPage ? page : 1; lines > 0; --lines)
        if (!cursor.movePosition(isUp ? QTextCursor::Up : QTextCursor::Down, mode)) break;
    setTextCursor(cursor);
}

std::u16string QtPlainBox::pasteable(QStringView text) const { return plain::withLineBreaks(viewOf(text)); }

// ---- Looks

void QtPlainBox::setLocked(bool locked) {
    setReadOnly(locked);
    // A read-only document is browsed without a caret, by Qt's rules; here the caret can be moved as ever.
    if (locked) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void QtPlainBox::setVisible(bool visible) {
    changeVisible(visible, [&] { QPlainTextEdit::setVisible(visible); });
}

int QtPlainBox::baseline() const {
    return frameWidth() + static_cast<int>(document()->documentMargin()) + fontMetrics().ascent();
}

// ---- Events

bool QtPlainBox::event(QEvent* event) {
    return atEdge([&] {
        if (event->type() == QEvent::ShortcutOverride) {
            shortcutAsked(static_cast<QKeyEvent&>(*event));
            return event->isAccepted();
        }
        return QPlainTextEdit::event(event);
    });
}

bool QtPlainBox::viewportEvent(QEvent* event) {
    return atEdge([&] { return QPlainTextEdit::viewportEvent(event); });
}

void QtPlainBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    focus::arrived(*this, event->reason());
}

void QtPlainBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    focus::departed(*this, event->reason());
}

void QtPlainBox::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) giveUpFocus();
}

void QtPlainBox::mousePressEvent(QMouseEvent* event) {
    takeAim();
    QPlainTextEdit::mousePressEvent(event);
    mousePressed(*event);
}

void QtPlainBox::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    mouseReleased(*event);
}

void QtPlainBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menuAsked(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

void QtPlainBox::dropEvent(QDropEvent* event) {
    if (locked() || !event->mimeData()->hasText()) {
        event->ignore();
        return;
    }
    QDragLeaveEvent leave;
    QPlainTextEdit::dragLeaveEvent(&leave);
    const int place = cursorForPosition(event->position().toPoint()).position();
    const std::size_t caret = plain::toText(*document(), place);
    const bool isMoved = event->source() == viewport() && event->proposedAction() == Qt::MoveAction;
    event->acceptProposedAction();
    if (isMoved)
        selectionMoved(caret);
    else
        dropped({caret, caret}, event->mimeData()->text());
}

QMimeData* QtPlainBox::createMimeDataFromSelection() const {
    auto* const copied = new QMimeData;
    QString lines = toQString(selText());
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    copied->setText(lines);
    return copied;
}

bool QtPlainBox::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

void QtPlainBox::insertFromMimeData(const QMimeData* source) { dropped(selection(), source->text()); }

}  // namespace kel::qt
