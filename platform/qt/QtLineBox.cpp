#include "platform/qt/QtLineBox.h"

#include <limits>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/PasswordStyle.h"
#include "platform/qt/TextDifference.h"

namespace kel::qt {

namespace {

int toInt(std::size_t position) { return static_cast<int>(position); }

}  // namespace

QtLineBox::QtLineBox(ControlSite& site, TextBoxListener& listener, QWidget& parent)
    : QLineEdit(&parent), EditBox(site, listener, *this, false) {
    connect(this, &QLineEdit::textChanged, this, [this] { textChangedInWidget(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { selectionChangedInWidget(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectionChangedInWidget(); });
}

// ---- What is shown

std::u16string QtLineBox::shownText() { return std::u16string(viewOf(QLineEdit::text())); }

void QtLineBox::showEdited(std::u16string_view text, std::size_t caret) {
    const TextDifference difference = differenceOf(viewOf(QLineEdit::text()), text, caret);
    if (difference.isNone()) return;
    makeRoom(text.size());
    const Selection replaced{difference.start, difference.end};
    if (shownSelection() != replaced) showSelection(replaced);
    insert(toQString(text.substr(difference.start, difference.newEnd - difference.start)));
}

void QtLineBox::showNew(std::u16string_view text) {
    if (viewOf(QLineEdit::text()) == text) return;
    makeRoom(text.size());
    QLineEdit::setText(toQString(text));
}

/// Qt's own limit is 32767 units; lifting it costs a new layout of the text, so it is done when needed.
void QtLineBox::makeRoom(std::size_t units) {
    if (units > static_cast<std::size_t>(QLineEdit::maxLength()))
        QLineEdit::setMaxLength(std::numeric_limits<int>::max());
}

Selection QtLineBox::shownSelection() const {
    const auto caret = static_cast<std::size_t>(cursorPosition());
    if (!hasSelectedText()) return {caret, caret};
    const auto start = static_cast<std::size_t>(selectionStart());
    return {caret == start ? static_cast<std::size_t>(selectionEnd()) : start, caret};
}

void QtLineBox::showSelection(const Selection& selection) {
    if (selection.empty())
        setCursorPosition(toInt(selection.caret));
    else
        setSelection(toInt(selection.anchor), toInt(selection.caret) - toInt(selection.anchor));
}

// ---- Looks

void QtLineBox::showPasswordChar(char16_t character) {
    setStyle(character == 0 ? nullptr : passwordStyle(character));
    setEchoMode(character == 0 ? Normal : Password);
}

void QtLineBox::setVisible(bool visible) {
    changeVisible(visible, [&] { QLineEdit::setVisible(visible); });
}

int QtLineBox::baseline() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents =
        style()->subElementRect(QStyle::SE_LineEditContents, &option, this).marginsRemoved(textMargins());
    const QFontMetrics metrics = fontMetrics();
    return contents.y() + (contents.height() - metrics.height() + 1) / 2 + metrics.ascent();
}

// ---- Events

bool QtLineBox::event(QEvent* event) {
    return atEdge([&] {
        if (event->type() == QEvent::ShortcutOverride) {
            shortcutAsked(static_cast<QKeyEvent&>(*event));
            return event->isAccepted();
        }
        // Qt's line edit would drop the selection when its window comes to the front.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        if (event->type() == QEvent::WindowActivate) return QWidget::event(event);
        return QLineEdit::event(event);
    });
}

// The reasons that Qt is given keep it from selecting all and from dropping the selection: both are the control's.

void QtLineBox::focusInEvent(QFocusEvent* event) {
    const bool clicked = event->reason() == Qt::MouseFocusReason;
    QFocusEvent quiet(QEvent::FocusIn, clicked ? Qt::MouseFocusReason : Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&quiet);
    focus::arrived(*this, event->reason());
}

void QtLineBox::focusOutEvent(QFocusEvent* event) {
    QFocusEvent quiet(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QLineEdit::focusOutEvent(&quiet);
    focus::departed(*this, event->reason());
}

void QtLineBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) giveUpFocus();
}

void QtLineBox::mousePressEvent(QMouseEvent* event) {
    takeAim();
    QLineEdit::mousePressEvent(event);
    mousePressed(*event);
}

void QtLineBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        const QClipboard* const clipboard = QGuiApplication::clipboard();
        if (clipboard->supportsSelection()) dropped(buffer().selection().caret, clipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    mouseReleased(*event);
}

void QtLineBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    menuAsked(byKey ? mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

void QtLineBox::dropEvent(QDropEvent* event) {
    if (locked() || !event->mimeData()->hasText()) {
        event->ignore();
        return;
    }
    QDragLeaveEvent leave;
    QLineEdit::dragLeaveEvent(&leave);
    const int place = cursorPositionAt(event->position().toPoint());
    event->acceptProposedAction();
    dropped(static_cast<std::size_t>(place), event->mimeData()->text());
}

}  // namespace kel::qt
