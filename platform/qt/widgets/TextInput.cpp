#include "platform/qt/widgets/TextInput.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QWheelEvent>
#include <QWidget>

#include "platform/qt/base/KeyMap.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/widgets/EditMenu.h"
#include "platform/qt/widgets/FieldView.h"

namespace kel::qt {

namespace {

/// A key of a rich layout may give several characters; all but the first.
QStringView furtherCharacters(const KeyStroke& stroke, QStringView text) {
    const qsizetype first = stroke.character > 0xFFFF ? 2 : 1;
    return keyPressCharacter(stroke) >= U' ' && text.size() > first ? text.sliced(first) : QStringView();
}

}  // namespace

MouseButton buttonOf(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

// ---- Keys, input methods and wheel

void TextInput::shortcutAsked(QKeyEvent& event) const { event.setAccepted(Box_.claims(strokeOf(event))); }

void TextInput::keyPressed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    event.setAccepted(Box_.strike(stroke));
    Box_.typeCommitted(viewOf(furtherCharacters(stroke, event.text())));
}

bool TextInput::committed(QInputMethodEvent& event) {
    event.setAccepted(!Box_.locked());
    if (Box_.locked()) return false;
    Box_.commitOver(event.replacementStart(), event.replacementLength(), viewOf(event.commitString()));
    return true;
}

bool TextInput::wheelTurned(const QWheelEvent& event) {
    return Field_.widget().hasFocus() && Box_.turnWheelBy(event.angleDelta().y());
}

// ---- Mouse

std::int32_t TextInput::takeAim(std::int32_t pressed) { return Aim_ < 0 ? pressed : std::exchange(Aim_, -1); }

void TextInput::menuAsked(const QPoint& globalPosition) { showEditMenu(Box_, Field_.widget(), globalPosition); }

void TextInput::pastePicked(const QString& text) {
    if (!text.isEmpty()) Box_.paste(viewOf(text));
}

void TextInput::pastePicked() {
    const QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection()) pastePicked(clipboard->text(QClipboard::Selection));
}

void TextInput::offerPicked() const {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection() && Box_.offers(EditAction::Copy))
        clipboard->setText(toQString(Box_.buffer().selectedText()), QClipboard::Selection);
}

// ---- Drops

bool TextInput::isMovedHere(const QDropEvent& event) const {
    const auto* const source = qobject_cast<QWidget*>(event.source());
    const bool isHere = source == &Field_.widget() || (source != nullptr && source->parent() == &Field_.widget());
    return isHere && !event.modifiers().testFlag(Qt::ControlModifier);
}

/// What comes from elsewhere stays there too: a field of another record is not emptied by accident, and a text that
/// is refused or cut here is not lost.
void TextInput::hovered(QDropEvent& event) const {
    event.setAccepted(event.mimeData()->hasText() && !Box_.locked());
    if (!event.isAccepted()) return;
    const Qt::DropAction action = isMovedHere(event) ? Qt::MoveAction : Qt::CopyAction;
    if (event.possibleActions().testFlag(action)) event.setDropAction(action);
}

bool TextInput::accepts(QDropEvent& event) {
    event.ignore();
    if (event.mimeData()->text().isEmpty() || Box_.locked() || !takeFocus()) return false;
    hovered(event);
    return true;
}

void TextInput::dropped(QDropEvent& event, std::size_t place) {
    if (isMovedHere(event))
        Box_.moveSelection(place);
    else
        Box_.drop(static_cast<std::int32_t>(place), viewOf(event.mimeData()->text()));
}

/// As a click does. A window that is not the active one may be slow to become it, or refuse: the control has to
/// hear of its focus before it hears of the text.
bool TextInput::takeFocus() {
    if (!Box_.takesInput()) return false;
    Field_.widget().window()->activateWindow();
    Field_.widget().setFocus(Qt::MouseFocusReason);
    focus::arrived(Field_, Qt::MouseFocusReason);
    return focus::isHeldBy(Field_) && Box_.takesInput();
}

}  // namespace kel::qt
