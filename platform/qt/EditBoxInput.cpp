#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/qt/EditBox.h"
#include "platform/qt/EditMenu.h"
#include "platform/qt/KeyMap.h"
#include "values/TextBoundaries.h"

/// What the user's hands do to an edit box.
namespace kel::qt {

namespace {

MouseButton buttonOf(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

bool isPlainTab(const KeyStroke& stroke) { return stroke.code == keys::Tab && (stroke.modifiers & ControlKey) == 0; }

bool isStep(EditAction action) { return action == EditAction::Left || action == EditAction::Right; }

/// A key of a rich layout may give several characters; all but the first.
QStringView furtherCharacters(const KeyStroke& stroke, QStringView text) {
    const qsizetype first = stroke.character > 0xFFFF ? 2 : 1;
    return keyPressCharacter(stroke) >= U' ' && text.size() > first ? text.sliced(first) : QStringView();
}

}  // namespace

// ---- Keys

void EditBox::shortcutAsked(QKeyEvent& event) const { event.setAccepted(claimsKey(strokeOf(event), locked())); }

void EditBox::keyPressed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    // Tab arrives here only when there is nowhere to go.
    event.setAccepted(!isPlainTab(stroke) && strike(stroke));
    Editor_.typeCommitted(viewOf(furtherCharacters(stroke, event.text())));
}

bool EditBox::strike(const KeyStroke& stroke) {
    const EditAction action = actionFor(stroke);
    // The editor does not know which way a text runs.
    if (!isStep(action) || !isMirrored()) return Editor_.strike(stroke);
    std::int16_t code = stroke.code;
    Editor_.listener().Text1_KeyDown(code, stroke.modifiers);
    if (code != 0 && takesInput()) stepMirrored(action, (stroke.modifiers & ShiftKey) != 0);
    return true;
}

void EditBox::stepMirrored(EditAction step, bool extend) {
    const Selection selection = buffer().selection();
    const bool forward = step == EditAction::Left;
    std::size_t caret = forward ? selection.end() : selection.start();
    if (extend || selection.empty()) {
        const auto next = forward ? &nextCharacter : &previousCharacter;
        caret = next(buffer().text(), selection.caret, buffer().multiLine());
    }
    Editor_.select({extend ? selection.anchor : caret, caret});
}

// ---- Input methods

void EditBox::inputMethodSpoke(QInputMethodEvent& event) {
    if (locked()) {
        event.ignore();
        return;
    }
    const QString committed = event.commitString();
    if (!committed.isEmpty() || event.replacementLength() > 0) {
        QInputMethodEvent finished;
        showComposition(finished);
        if (event.replacementLength() > 0) {
            setSelStart(static_cast<std::int32_t>(buffer().selection().caret) + event.replacementStart());
            setSelLength(event.replacementLength());
            if (committed.isEmpty()) Editor_.perform(EditAction::EraseSelection);
        }
        Editor_.typeCommitted(viewOf(committed));
        if (event.preeditString().isEmpty()) return;
    }
    QInputMethodEvent composition(event.preeditString(), event.attributes());
    showComposition(composition);
}

/// In front of the selection, which gives way when the composition is committed and not before: it may yet be
/// cancelled.
void EditBox::showComposition(QInputMethodEvent& event) {
    const ShowingScope scope(Showing_);
    const Selection selection = buffer().selection();
    const Selection composing{selection.start(), selection.start()};
    const bool ends = event.preeditString().isEmpty();
    // Not while something is being composed: that would commit it.
    if (!ends && shownSelection() != composing) showSelection(composing);
    compose(event);
    if (ends && shownSelection() != selection) showSelection(selection);
}

// ---- Mouse

void EditBox::takeAim() {
    if (Aim_ >= 0) Editor_.setSelStart(Aim_);
}

void EditBox::mousePressed(const QMouseEvent& event) {
    takeAim();
    Aim_ = -1;
    LeftPressed_ = event.button() == Qt::LeftButton;
    Editor_.pressMouse(buttonOf(event.button()));
}

void EditBox::mouseReleased(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !std::exchange(LeftPressed_, false)) return;
    if (mouseArea().rect().contains(event.position().toPoint())) Editor_.click();
}

void EditBox::menuAsked(const QPoint& globalPosition) { showEditMenu(*this, globalPosition); }

void EditBox::dropped(std::size_t place, QStringView text) {
    Editor_.select({place, place});
    Incoming_ = text;
    Editor_.perform(EditAction::Paste);
    Incoming_.reset();
}

/// One edit of all that lies between, so that handlers see the text once and one undo takes it back.
void EditBox::selectionMoved(std::size_t place) {
    const Selection moved = buffer().selection();
    const std::u16string_view text = buffer().text();
    if (locked() || (place >= moved.start() && place <= moved.end())) return;
    const std::u16string selected = selText();
    if (place < moved.start()) {
        const std::u16string passed(text.substr(place, moved.start() - place));
        Editor_.select({place, moved.end()});
        Editor_.setSelText(selected + passed);
    } else {
        const std::u16string passed(text.substr(moved.end(), place - moved.end()));
        Editor_.select({moved.start(), place});
        Editor_.setSelText(passed + selected);
    }
}

}  // namespace kel::qt
