#include <QMimeData>
#include <QWidget>

#include "platform/qt/EditBox.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/TextBridge.h"

/// Text that is dragged to an edit box, or within it.
namespace kel::qt {

bool EditBox::isMovedHere(const QDropEvent& event) {
    return event.source() == &mouseArea() && !event.modifiers().testFlag(Qt::ControlModifier);
}

/// What comes from elsewhere stays there too: a field of another record is not emptied by accident, and a text that
/// is refused or cut here is not lost.
void EditBox::chooseDropAction(QDropEvent& event) {
    const Qt::DropAction action = isMovedHere(event) ? Qt::MoveAction : Qt::CopyAction;
    if (event.possibleActions().testFlag(action)) event.setDropAction(action);
    event.accept();
}

void EditBox::dropped(QDropEvent& event) {
    event.ignore();
    const QString text = event.mimeData()->text();
    if (text.isEmpty() || Edit_.locked() || !takeFocus()) return;
    chooseDropAction(event);
    // Getting the focus may have changed the text.
    bringUpToDate();
    const std::size_t place = positionAt(event.position().toPoint());
    if (isMovedHere(event)) {
        moveSelection(place);
    } else {
        Edit_.select({place, place});
        Edit_.paste(viewOf(text));
    }
}

/// As a click does. A window that is not the active one may be slow to become it, or refuse: the control has to
/// hear of its focus before it hears of the text.
bool EditBox::takeFocus() {
    if (!takesInput()) return false;
    field().widget().window()->activateWindow();
    field().widget().setFocus(Qt::MouseFocusReason);
    focus::arrived(field(), Qt::MouseFocusReason);
    return focus::isHeldBy(field()) && takesInput();
}

/// One edit of all that lies between, so that handlers see the text once and one undo takes it back.
void EditBox::moveSelection(std::size_t place) {
    const Selection before = buffer().selection();
    if (place >= before.start() && place <= before.end()) return;
    const bool back = place < before.start();
    const std::size_t start = back ? place : before.start();
    const std::size_t end = back ? before.end() : place;
    const std::u16string moved(buffer().selectedText());
    const std::u16string passed = buffer().text().substr(back ? place : before.end(), end - start - moved.size());
    std::u16string text = back ? moved + passed : passed + moved;
    const std::size_t caret = start + (back ? moved.size() : text.size());

    Edit_.select({start, end});
    if (Edit_.listener().Text1_Paste(text) && !Edit_.locked() && takesInput()) {
        Edit_.listener().Text1_Edit(EditAction::Paste);
        Edit_.setSelText(text);
        Edit_.select({caret, caret});
    } else {
        Edit_.select(before);
    }
}

}  // namespace kel::qt
