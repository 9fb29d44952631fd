#include "platform/qt/QtLine.h"

#include <limits>
#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <utility>

#include "host/editing/TextDifference.h"
#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FocusTracker.h"

namespace kel::qt {

namespace {

int toInt(std::size_t position) { return static_cast<int>(position); }

/// Posted to a line that waits with what it is to show.
QEvent::Type timeToShow() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

/// Qt's line edit has no part in what a key does.
bool isOfKey(const QEvent& event) {
    const QEvent::Type type = event.type();
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
}

}  // namespace

template <class Box>
void QtLine<Box>::watchText() {
    setDragEnabled(true);
    connect(this, &QLineEdit::textChanged, this, [this] { this->textChangedInWidget(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { this->selectionChangedInWidget(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { this->selectionChangedInWidget(); });
}

// ---- What is shown

/// Until the events are through that came along with this one, or until one comes that needs what is shown; out of
/// sight, until the line is seen. A screen reader is not kept waiting.
template <class Box>
bool QtLine<Box>::postponesShowing() {
    if (QAccessible::isActive()) return false;
    if (isVisible() && !std::exchange(IsTimeToShowPosted_, true))
        QCoreApplication::postEvent(this, new QEvent(timeToShow()));
    return true;
}

template <class Box>
std::u16string QtLine<Box>::shownText() {
    return std::u16string(viewOf(QLineEdit::text()));
}

template <class Box>
void QtLine<Box>::showEdited(std::u16string_view text, std::size_t caret) {
    const TextDifference difference = differenceOf(viewOf(QLineEdit::text()), text, caret);
    if (difference.isNone()) return;
    makeRoom(text.size());
    const Selection replaced{difference.start, difference.end};
    if (shownSelection() != replaced) showSelection(replaced);
    insert(toQString(text.substr(difference.start, difference.newEnd - difference.start)));
}

template <class Box>
void QtLine<Box>::showNew(std::u16string_view text) {
    if (viewOf(QLineEdit::text()) == text) return;
    makeRoom(text.size());
    QLineEdit::setText(toQString(text));
}

/// Qt's own limit is 32767 units; lifting it costs a new layout of the text, so it is done when needed.
template <class Box>
void QtLine<Box>::makeRoom(std::size_t units) {
    if (units > static_cast<std::size_t>(QLineEdit::maxLength()))
        QLineEdit::setMaxLength(std::numeric_limits<int>::max());
}

template <class Box>
Selection QtLine<Box>::shownSelection() const {
    const auto caret = static_cast<std::size_t>(cursorPosition());
    if (!hasSelectedText()) return {caret, caret};
    const auto start = static_cast<std::size_t>(selectionStart());
    return {caret == start ? static_cast<std::size_t>(selectionEnd()) : start, caret};
}

template <class Box>
void QtLine<Box>::showSelection(const Selection& selection) {
    if (selection.empty())
        setCursorPosition(toInt(selection.caret));
    else
        setSelection(toInt(selection.anchor), toInt(selection.caret) - toInt(selection.anchor));
}

template <class Box>
std::size_t QtLine<Box>::positionAt(const QPoint& point) const {
    // Qt only reads, but does not say so.
    return static_cast<std::size_t>(const_cast<QtLine*>(this)->cursorPositionAt(point));
}

// ---- Looks

template <class Box>
void QtLine<Box>::setVisible(bool visible) {
    this->changeVisible(visible, [&] { QLineEdit::setVisible(visible); });
}

template <class Box>
int QtLine<Box>::baseline() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents =
        style()->subElementRect(QStyle::SE_LineEditContents, &option, this).marginsRemoved(textMargins());
    const QFontMetrics metrics = fontMetrics();
    return contents.y() + (contents.height() - metrics.height() + 1) / 2 + metrics.ascent();
}

// ---- Events

template <class Box>
bool QtLine<Box>::event(QEvent* event) {
    return atEdge([&] {
        if (isVisible() && !isOfKey(*event)) this->bringUpToDate();
        if (event->type() == timeToShow()) {
            IsTimeToShowPosted_ = false;
            return true;
        }
        if (event->type() == QEvent::ShortcutOverride) {
            this->shortcutAsked(static_cast<QKeyEvent&>(*event));
            return event->isAccepted();
        }
        // Qt's line edit would drop the selection when its window comes to the front.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        if (event->type() == QEvent::WindowActivate) return QWidget::event(event);
        return QLineEdit::event(event);
    });
}

// The reasons that Qt is given keep it from selecting all and from dropping the selection: both are the control's.

template <class Box>
void QtLine<Box>::focusInEvent(QFocusEvent* event) {
    const bool clicked = event->reason() == Qt::MouseFocusReason;
    QFocusEvent quiet(QEvent::FocusIn, clicked ? Qt::MouseFocusReason : Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&quiet);
    focus::arrived(*this, event->reason());
}

template <class Box>
void QtLine<Box>::focusOutEvent(QFocusEvent* event) {
    QFocusEvent quiet(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QLineEdit::focusOutEvent(&quiet);
    focus::departed(*this, event->reason());
}

template <class Box>
void QtLine<Box>::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) this->giveUpFocus();
}

template <class Box>
void QtLine<Box>::mousePressEvent(QMouseEvent* event) {
    this->takeAim();
    QLineEdit::mousePressEvent(event);
    this->mousePressed(*event);
}

template <class Box>
void QtLine<Box>::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        const QClipboard* const clipboard = QGuiApplication::clipboard();
        if (clipboard->supportsSelection()) this->pastePicked(clipboard->text(QClipboard::Selection));
        return;
    }
    const bool mayHaveDragged = hasSelectedText();
    QLineEdit::mouseReleaseEvent(event);
    // A click into the selection, which might have become a drag: Qt drops the selection and leaves the caret.
    if (mayHaveDragged && !hasSelectedText()) setCursorPosition(cursorPositionAt(event->position().toPoint()));
    this->mouseReleased(*event);
}

template <class Box>
void QtLine<Box>::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    this->menuAsked(byKey ? mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

template <class Box>
void QtLine<Box>::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

template <class Box>
void QtLine<Box>::dragMoveEvent(QDragMoveEvent* event) {
    this->dragMoved(*event, [&] { QLineEdit::dragMoveEvent(event); });
}

template <class Box>
void QtLine<Box>::dragLeaveEvent(QDragLeaveEvent* event) {
    this->dragLeft([&] { QLineEdit::dragLeaveEvent(event); });
}

template <class Box>
void QtLine<Box>::dropEvent(QDropEvent* event) {
    QDragLeaveEvent leave;
    dragLeaveEvent(&leave);
    this->dropped(*event);
}

template class QtLine<QtTextBox>;
template class QtLine<QtComboField>;

}  // namespace kel::qt
