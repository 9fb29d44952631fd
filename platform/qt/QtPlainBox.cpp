#include "platform/qt/QtPlainBox.h"

#include <algorithm>
#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include "host/editing/TextDifference.h"
#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/PlainText.h"
#include "values/TextBoundaries.h"

namespace kel::qt {

namespace {

/// So that text begins where it does in a single-line box, and one line of it fits into the lowest box.
constexpr int TextIndent = 3;

}  // namespace

QtPlainBox::QtPlainBox(ControlSite& site, TextBoxListener& listener, QWidget& parent)
    : QPlainTextEdit(&parent), QtTextBox(site, *this, listener, true) {
    setTabChangesFocus(true);
    // It loses its place in the tab order to the next control, and would then lead here from elsewhere.
    viewport()->setFocusProxy(nullptr);
    document()->setUndoRedoEnabled(false);
    document()->setDocumentMargin(std::max(TextIndent - frameWidth(), 1));
    connect(this, &QPlainTextEdit::textChanged, this, [this] { textChangedInWidget(); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { selectionChangedInWidget(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { selectionChangedInWidget(); });
}

// ---- What is shown

std::u16string QtPlainBox::shownText() {
    Shown_ = plain::text(*document());
    return Shown_;
}

void QtPlainBox::showEdited(std::u16string_view text, std::size_t caret) {
    const TextDifference difference = differenceOf(Shown_, text, caret);
    if (difference.isNone()) return;
    const std::u16string_view inserted = text.substr(difference.start, difference.newEnd - difference.start);
    plain::replace(*document(), difference.start, difference.end, inserted);
    Shown_.replace(difference.start, difference.end - difference.start, inserted);
    showSelection({caret, caret});
}

void QtPlainBox::showNew(std::u16string_view text) {
    if (Shown_ == text) return;
    setPlainText(plain::encoded(text));
    Shown_.assign(text);
}

Selection QtPlainBox::shownSelection() const {
    const QTextCursor cursor = textCursor();
    return {plain::toText(*document(), cursor.anchor()), plain::toText(*document(), cursor.position())};
}

void QtPlainBox::showSelection(const Selection& selection) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(plain::toDocument(*document(), selection.anchor));
    cursor.setPosition(plain::toDocument(*document(), selection.caret), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

std::size_t QtPlainBox::positionAt(const QPoint& point) const {
    return plain::toText(*document(), cursorForPosition(point).position());
}

bool QtPlainBox::isMirrored() const { return textCursor().block().textDirection() == Qt::RightToLeft; }

TextLine QtPlainBox::lineAt(std::size_t position) const {
    const QTextDocument& content = *document();
    const int inDocument = plain::toDocument(content, position);
    const QTextBlock block = content.findBlock(inDocument);
    content.documentLayout()->blockBoundingRect(block);  // lays it out if nobody has seen it yet
    const QTextLine line = block.layout()->lineForTextPosition(inDocument - block.position());
    if (!line.isValid()) return buffer().lineAt(position);

    const int start = block.position() + line.textStart();
    const int end = start + line.textLength();
    const bool isWrapped = line.lineNumber() + 1 < block.layout()->lineCount();
    // At the end of a wrapped line the caret would stand at the start of the next one.
    if (isWrapped) {
        const std::size_t next = plain::toText(content, end);
        return {plain::toText(content, start), previousCharacter(buffer().text(), next, true), next, false};
    }
    const std::size_t textEnd = plain::toText(content, end);
    const bool isLast = !block.next().isValid();
    return {plain::toText(content, start), textEnd, isLast ? textEnd : textEnd + 2, isLast};
}

std::ptrdiff_t QtPlainBox::linesOfPage() const {
    return std::max(viewport()->height() / fontMetrics().lineSpacing(), 1);
}

// ---- Looks

void QtPlainBox::showLocked(bool locked) {
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

void QtPlainBox::wheelEvent(QWheelEvent* event) {
    wheelTurned(*event);
    QPlainTextEdit::wheelEvent(event);
}

void QtPlainBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menuAsked(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

void QtPlainBox::dragEnterEvent(QDragEnterEvent* event) {
    dragMoved(*event, [&] { QPlainTextEdit::dragEnterEvent(event); });
}

void QtPlainBox::dragMoveEvent(QDragMoveEvent* event) {
    dragMoved(*event, [&] { QPlainTextEdit::dragMoveEvent(event); });
}

void QtPlainBox::dropEvent(QDropEvent* event) {
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
    dropped(*event);
}

QMimeData* QtPlainBox::createMimeDataFromSelection() const {
    auto* const copied = new QMimeData;
    QString lines = toQString(selText());
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    copied->setText(lines);
    return copied;
}

bool QtPlainBox::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

}  // namespace kel::qt
