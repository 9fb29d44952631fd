#include "platform/qt/widgets/QtTextArea.h"

#include <algorithm>
#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include "host/Accessible.h"
#include "host/editing/TextDifference.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/widgets/PlainText.h"
#include "values/TextBoundaries.h"

namespace kel::qt {

namespace {

/// So that text begins where it does in a single-line box, and one line of it fits into the lowest box.
constexpr int TextIndent = 3;

}  // namespace

QtTextArea::QtTextArea(ControlSite& site, TextEntry& box, QWidget& parent)
    : QPlainTextEdit(&parent), TextInput(site, *this, box) {
    setTabChangesFocus(true);
    // It loses its place in the tab order to the next control, and would then lead here from elsewhere.
    viewport()->setFocusProxy(nullptr);
    // Lines are broken; only a letter wider than the field would ask for it.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setUndoRedoEnabled(false);
    document()->setDocumentMargin(std::max(TextIndent - frameWidth(), 1));
    connect(this, &QPlainTextEdit::textChanged, this, [this] { textChangedInWidget(); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { selectionChangedInWidget(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { selectionChangedInWidget(); });
}

// ---- What is shown

void QtTextArea::outOfDate() {
    const Changes changes = box().takeChanges();
    showState(changes);
    if (changes.has(Change::Colors)) colorAgain();
    if (changes.has(Change::Locked)) showLocked();
    if (changes.has(Change::Text) || changes.has(Change::Selection)) showText();
    const bool isRead = QAccessible::isActive() || !accessibleDescription().isEmpty();
    if (isRead && changes.has(Change::Text | Change::ToolTip)) describeAgain();
}

/// Qt's own box tells its text; what else there is to be told of a field stands in its description.
void QtTextArea::prepareSpeech() {
    takeNameOfLabel();
    describeAgain();
}

void QtTextArea::describeAgain() {
    const Accessible now = described();
    // Without remarks the tooltip speaks for itself.
    const QString description = remarksOn(now).empty() ? QString() : toQString(helpAndRemarks(now));
    if (accessibleDescription() != description) setAccessibleDescription(description);
}

/// No more than what differs: laying out a text is what Qt's box spends most of its time on.
void QtTextArea::showText() {
    const QScopedValueRollback showing(Showing_, true);
    const Selection& selection = box().selection();
    const TextDifference difference = differenceOf(Shown_, box().text(), selection.caret);
    if (!difference.isNone()) {
        const std::u16string_view text = box().text();
        const std::u16string_view inserted = text.substr(difference.start, difference.newEnd - difference.start);
        plain::replace(*document(), difference.start, difference.end, inserted);
        Shown_.replace(difference.start, difference.end - difference.start, inserted);
    }
    if (shownSelection() != selection) showSelection(selection);
}

Selection QtTextArea::shownSelection() const {
    const QTextCursor cursor = textCursor();
    return {plain::toText(*document(), cursor.anchor()), plain::toText(*document(), cursor.position())};
}

void QtTextArea::showSelection(const Selection& selection) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(plain::toDocument(*document(), selection.anchor));
    cursor.setPosition(plain::toDocument(*document(), selection.caret), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void QtTextArea::showLocked() {
    setReadOnly(box().locked());
    // A read-only document is browsed without a caret, by Qt's rules; here the caret can be moved as ever.
    if (box().locked()) setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void QtTextArea::colorAgain() {
    const bool areUsual = colors() == FieldColors{};
    setPalette(areUsual ? QPalette() : fieldPalette(colors(), parentWidget()->palette()));
}

// ---- What somebody else has made of it, a screen reader, say, that writes into it

void QtTextArea::textChangedInWidget() {
    if (Showing_) return;
    Shown_ = plain::text(*document());
    if (Shown_ == box().text()) return;
    const std::u16string written = Shown_;
    const Selection selection = shownSelection();
    const TextDifference difference = differenceOf(box().text(), written, selection.caret);
    box().write(difference.start, difference.end,
                std::u16string_view(written).substr(difference.start, difference.newEnd - difference.start));
    if (box().text() == written) box().select(selection);
    showText();
}

void QtTextArea::selectionChangedInWidget() {
    if (Showing_) return;
    const Selection selection = shownSelection();
    // Where Qt speaks of the caret first, the text it stands in is still to come.
    const bool isKnown = selection.end() <= box().text().size();
    if (isKnown && selection != box().selection()) box().select(selection);
}

// ---- Lines

bool QtTextArea::isMirrored() const { return textCursor().block().textDirection() == Qt::RightToLeft; }

TextLine QtTextArea::lineAt(std::size_t position) const {
    const QTextDocument& content = *document();
    const int inDocument = plain::toDocument(content, position);
    const QTextBlock block = content.findBlock(inDocument);
    content.documentLayout()->blockBoundingRect(block);  // lays it out if nobody has seen it yet
    const QTextLine line = block.layout()->lineForTextPosition(inDocument - block.position());
    if (!line.isValid()) return box().buffer().lineAt(position);

    const int start = block.position() + line.textStart();
    const int end = start + line.textLength();
    const bool isWrapped = line.lineNumber() + 1 < block.layout()->lineCount();
    // At the end of a wrapped line the caret would stand at the start of the next one.
    if (isWrapped) {
        const std::size_t next = plain::toText(content, end);
        return {plain::toText(content, start), previousCharacter(box().text(), next, true), next, false};
    }
    const std::size_t textEnd = plain::toText(content, end);
    const bool isLast = !block.next().isValid();
    return {plain::toText(content, start), textEnd, isLast ? textEnd : textEnd + 2, isLast};
}

std::ptrdiff_t QtTextArea::linesOfPage() const {
    return std::max(viewport()->height() / fontMetrics().lineSpacing(), 1);
}

// ---- Looks

int QtTextArea::baseline() const {
    return frameWidth() + static_cast<int>(document()->documentMargin()) + fontMetrics().ascent();
}

// ---- Events

/// Where a scroll bar leaves no room for text, Qt's box would show and hide it for ever.
void QtTextArea::allowScrollBar() {
    const int edges = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const bool isNarrow = width() < edges + bar + fontMetrics().maxWidth();
    setVerticalScrollBarPolicy(isNarrow ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

bool QtTextArea::event(QEvent* event) {
    if (event->type() == QEvent::Resize) allowScrollBar();
    return hear(*event, [&] { return QPlainTextEdit::event(event); });
}

bool QtTextArea::viewportEvent(QEvent* event) {
    return atEdge([&] { return QPlainTextEdit::viewportEvent(event); });
}

void QtTextArea::showComposition(QInputMethodEvent& event) {
    const QScopedValueRollback showing(Showing_, true);
    const Selection& selection = box().selection();
    const Selection composing{selection.start(), selection.start()};
    const bool ends = event.preeditString().isEmpty();
    // Not while something is being composed: that would commit it.
    if (!ends && shownSelection() != composing) showSelection(composing);
    QPlainTextEdit::inputMethodEvent(&event);
    if (ends && shownSelection() != selection) showSelection(selection);
}

// ---- Mouse and drops

std::int32_t QtTextArea::positionAt(const QMouseEvent& event) const {
    const int inDocument = cursorForPosition(event.position().toPoint()).position();
    return static_cast<std::int32_t>(plain::toText(*document(), inDocument));
}

/// A first press is Qt's, which may begin a drag.
void QtTextArea::mousePressEvent(QMouseEvent* event) {
    const std::int32_t aim = takeAim(-1);
    PressClicks_ = clicksOf(*event);
    if (PressClicks_ > 1) {
        box().press({.position = aim >= 0 ? aim : positionAt(*event), .clicks = PressClicks_});
        return;
    }
    QPlainTextEdit::mousePressEvent(event);
    if (aim >= 0) box().setSelStart(aim);
    box().pressMouse(buttonOf(event->button()));
}

void QtTextArea::mouseMoveEvent(QMouseEvent* event) {
    if (PressClicks_ < 2 || !event->buttons().testFlag(Qt::LeftButton))
        QPlainTextEdit::mouseMoveEvent(event);
    else
        box().dragTo(positionAt(*event));
}

void QtTextArea::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    if (PressClicks_ > 1) offerPicked();
    if (event->button() == Qt::LeftButton) box().releaseMouse(viewport()->rect().contains(event->position().toPoint()));
}

void QtTextArea::wheelEvent(QWheelEvent* event) {
    wheelTurned(*event);
    QPlainTextEdit::wheelEvent(event);
}

void QtTextArea::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menuAsked(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

/// Qt shows where the text would go, which moves nothing of the text's own.
void QtTextArea::dragEnterEvent(QDragEnterEvent* event) {
    const QScopedValueRollback showing(Showing_, true);
    QPlainTextEdit::dragEnterEvent(event);
    hovered(*event);
}

void QtTextArea::dragMoveEvent(QDragMoveEvent* event) {
    const QScopedValueRollback showing(Showing_, true);
    QPlainTextEdit::dragMoveEvent(event);
    hovered(*event);
}

void QtTextArea::dragLeaveEvent(QDragLeaveEvent* event) {
    const QScopedValueRollback showing(Showing_, true);
    QPlainTextEdit::dragLeaveEvent(event);
    if (shownSelection() != box().selection()) showSelection(box().selection());
}

void QtTextArea::dropEvent(QDropEvent* event) {
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
    const QPoint point = event->position().toPoint();
    if (accepts(*event)) dropped(*event, plain::toText(*document(), cursorForPosition(point).position()));
}

QMimeData* QtTextArea::createMimeDataFromSelection() const {
    auto* const copied = new QMimeData;
    copied->setText(toQString(box().buffer().selectedText()).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    return copied;
}

}  // namespace kel::qt
