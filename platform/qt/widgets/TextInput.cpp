#include "platform/qt/widgets/TextInput.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDropEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>
#include <QWidget>

#include "platform/qt/base/KeyMap.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/control/QtFocus.h"

namespace kel::qt {

namespace {

struct Entry {
    const char* text;  ///< as Qt's own line edit has it translated
    const char* icon;
    QKeySequence::StandardKey key;
    EditAction action;
    bool beginsGroup;
};

constexpr Entry Entries[] = {
    {"&Undo", "edit-undo", QKeySequence::Undo, EditAction::Undo, false},
    {"&Redo", "edit-redo", QKeySequence::Redo, EditAction::Redo, false},
    {"Cu&t", "edit-cut", QKeySequence::Cut, EditAction::Cut, true},
    {"&Copy", "edit-copy", QKeySequence::Copy, EditAction::Copy, false},
    {"&Paste", "edit-paste", QKeySequence::Paste, EditAction::Paste, false},
    {"Delete", "edit-delete", QKeySequence::UnknownKey, EditAction::EraseSelection, false},
    {"Select All", "edit-select-all", QKeySequence::SelectAll, EditAction::SelectAll, true},
};

void addEntry(QMenu& menu, TextEntry& box, const Entry& entry) {
    if (entry.beginsGroup) menu.addSeparator();
    QString text = QCoreApplication::translate("QLineEdit", entry.text);
    const QString key = QKeySequence(entry.key).toString(QKeySequence::NativeText);
    if (!key.isEmpty()) text += u'\t' + key;
    QAction* const action = menu.addAction(QIcon::fromTheme(QLatin1String(entry.icon)), text);
    action->setObjectName(QLatin1String(entry.icon));
    action->setEnabled(box.offers(entry.action));
    const EditAction chosen = entry.action;
    QObject::connect(action, &QAction::triggered, menu.parent(), [&box, chosen] { box.perform(chosen); });
}

}  // namespace

MouseButton buttonOf(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

// ---- Keys, input methods and wheel

bool TextInput::claim(QEvent& event) const {
    event.setAccepted(Box_.claims(strokeOf(static_cast<QKeyEvent&>(event))));
    return event.isAccepted();
}

void TextInput::keyPressed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    const QString typed = event.text();
    const qsizetype first = stroke.character > 0xFFFF ? 2 : 1;
    event.setAccepted(Box_.strike(stroke, viewOf(QStringView(typed).mid(first))));
}

void TextInput::composed(QInputMethodEvent& event) {
    const bool commits = !event.commitString().isEmpty() || event.replacementLength() > 0;
    // What is finished is no composition any longer, nor to be ended as one.
    QInputMethodEvent none;
    if (commits) showComposition(none);
    event.setAccepted(!Box_.locked());
    if (Box_.locked()) return;
    Box_.commitOver(event.replacementStart(), event.replacementLength(), viewOf(event.commitString()));
    if (commits && event.preeditString().isEmpty()) return;
    QInputMethodEvent composition(event.preeditString(), event.attributes());
    showComposition(composition);
}

bool TextInput::wheelTurned(const QWheelEvent& event) {
    return widget().hasFocus() && Box_.turnWheelBy(event.angleDelta().y());
}

// ---- Mouse

std::int32_t TextInput::takeAim(std::int32_t pressed) { return Aim_ < 0 ? pressed : std::exchange(Aim_, -1); }

int TextInput::clicksOf(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return 1;
    const QStyleHints& desktop = *QGuiApplication::styleHints();
    const QPoint place = event.globalPosition().toPoint();
    return Clicks_.count({event.type() == QEvent::MouseButtonDblClick, place.x(), place.y(),
                          static_cast<std::int64_t>(event.timestamp())},
                         {desktop.mouseDoubleClickInterval(), desktop.mouseDoubleClickDistance()});
}

/// What it does goes the box's own way, so that lock and maximum length hold.
void TextInput::menuAsked(const QPoint& globalPosition) {
    auto* const menu = new QMenu(&widget());
    menu->setObjectName(QStringLiteral("qt_edit_menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Entry& entry : Entries) addEntry(*menu, Box_, entry);
    menu->popup(globalPosition);
}

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
    const bool isHere = source == &widget() || (source != nullptr && source->parent() == &widget());
    return isHere && !event.modifiers().testFlag(Qt::ControlModifier);
}

/// What comes from elsewhere stays there too: a field of another record is not emptied by accident, and a text that
/// is refused or cut here is not lost.
void TextInput::hovered(QDropEvent& event) const {
    event.setAccepted(event.mimeData()->hasText() && Box_.takesDrop());
    if (!event.isAccepted()) return;
    const Qt::DropAction action = isMovedHere(event) ? Qt::MoveAction : Qt::CopyAction;
    if (event.possibleActions().testFlag(action)) event.setDropAction(action);
}

bool TextInput::accepts(QDropEvent& event) {
    event.ignore();
    if (event.mimeData()->text().isEmpty() || !Box_.takesDrop() || !takeFocus()) return false;
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
    widget().window()->activateWindow();
    widget().setFocus(Qt::MouseFocusReason);
    focus::arrived(*this, Qt::MouseFocusReason);
    return Box_.hasFocus() && Box_.takesInput();
}

}  // namespace kel::qt
