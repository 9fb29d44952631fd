#include "platform/qt/QtLineBox.h"

#include <limits>
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
#include "values/TextBoundaries.h"

namespace kel::qt {

namespace {

constexpr bool SingleLine = false;

int toInt(std::size_t position) { return static_cast<int>(position); }

/// Where the caret of a menu opened by key stands.
QPoint menuPosition(const QContextMenuEvent& event, const QWidget& box, const QRect& caret) {
    return event.reason() == QContextMenuEvent::Keyboard ? box.mapToGlobal(caret.bottomLeft()) : event.globalPos();
}

}  // namespace

QtLineBox::QtLineBox(ControlSite& site, TextBoxListener& listener, QWidget& parent)
    : QLineEdit(&parent), EditBox(site, listener, *this) {
    connect(this, &QLineEdit::textChanged, this, [this] { textChangedInWidget(); });
}

// ---- Text and selection

std::u16string QtLineBox::text() const { return std::u16string(viewOf(QLineEdit::text())); }

bool QtLineBox::textEquals(std::u16string_view other) const { return viewOf(QLineEdit::text()) == other; }

std::int32_t QtLineBox::textLength() const { return static_cast<std::int32_t>(QLineEdit::text().size()); }

std::u16string QtLineBox::textBetween(std::size_t start, std::size_t end) const {
    return std::u16string(viewOf(QLineEdit::text()).substr(start, end - start));
}

Selection QtLineBox::selection() const {
    const auto caret = static_cast<std::size_t>(cursorPosition());
    if (!hasSelectedText()) return {caret, caret};
    const auto start = static_cast<std::size_t>(selectionStart());
    return {caret == start ? static_cast<std::size_t>(selectionEnd()) : start, caret};
}

void QtLineBox::select(const Selection& selection) {
    if (selection.empty())
        setCursorPosition(toInt(selection.caret));
    else
        QLineEdit::setSelection(toInt(selection.anchor), toInt(selection.caret) - toInt(selection.anchor));
}

void QtLineBox::replace(std::size_t start, std::size_t end, std::u16string_view text) {
    makeRoom(static_cast<std::int64_t>(textLength()) - static_cast<std::int64_t>(end - start) +
             static_cast<std::int64_t>(text.size()));
    const Selection replaced{start, end};
    if (selection() != replaced) select(replaced);
    insert(toQString(text));
}

void QtLineBox::replaceAll(std::u16string_view text) {
    makeRoom(static_cast<std::int64_t>(text.size()));
    QLineEdit::setText(toQString(text));
    setCursorPosition(0);
}

/// Qt's own limit is 32767 units; lifting it costs a new layout of the text, so it is done when needed.
void QtLineBox::makeRoom(std::int64_t units) {
    if (units <= QLineEdit::maxLength()) return;
    const Selection selected = selection();
    QLineEdit::setMaxLength(std::numeric_limits<int>::max());
    select(selected);
}

// ---- Places in the text

std::size_t QtLineBox::snapped(std::size_t position) const {
    return snapDown(viewOf(QLineEdit::text()), position, SingleLine);
}

std::size_t QtLineBox::nextCodePoint(std::size_t position) const {
    return kel::nextCodePoint(viewOf(QLineEdit::text()), position, SingleLine);
}

std::size_t QtLineBox::previousCodePoint(std::size_t position) const {
    return kel::previousCodePoint(viewOf(QLineEdit::text()), position, SingleLine);
}

std::size_t QtLineBox::destination(EditAction move, std::size_t position) const {
    const QString content = QLineEdit::text();
    const std::u16string_view text = viewOf(content);
    const bool mirrored = content.isRightToLeft();
    switch (move) {
        case EditAction::Left:
        case EditAction::Right:
            return (move == EditAction::Left) != mirrored ? previousCharacter(text, position, SingleLine)
                                                          : nextCharacter(text, position, SingleLine);
        // A password gives away no words.
        case EditAction::WordLeft: return isPassword() ? 0 : previousWord(text, position, SingleLine);
        case EditAction::WordRight: return isPassword() ? text.size() : nextWord(text, position, SingleLine);
        case EditAction::LineStart:
        case EditAction::TextStart: return 0;
        default: return text.size();
    }
}

std::u16string QtLineBox::pasteable(QStringView text) const {
    const std::u16string_view all = viewOf(text);
    return std::u16string(all.substr(0, all.find_first_of(u"\r\n")));
}

// ---- Looks

void QtLineBox::setPasswordChar(char16_t character) {
    if (character == PasswordChar_) return;
    PasswordChar_ = character;
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
        return event->type() == QEvent::WindowActivate ? QWidget::event(event) : QLineEdit::event(event);
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
        if (!clipboard->supportsSelection()) return;
        const auto caret = static_cast<std::size_t>(cursorPosition());
        dropped({caret, caret}, clipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    mouseReleased(*event);
}

void QtLineBox::contextMenuEvent(QContextMenuEvent* event) { menuAsked(menuPosition(*event, *this, cursorRect())); }

void QtLineBox::dropEvent(QDropEvent* event) {
    if (locked() || !event->mimeData()->hasText()) {
        event->ignore();
        return;
    }
    QDragLeaveEvent leave;
    QLineEdit::dragLeaveEvent(&leave);
    const std::size_t place = snapped(static_cast<std::size_t>(cursorPositionAt(event->position().toPoint())));
    event->acceptProposedAction();
    dropped({place, place}, event->mimeData()->text());
}

}  // namespace kel::qt
