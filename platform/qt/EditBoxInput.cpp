#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include "platform/qt/EditBox.h"
#include "platform/qt/EditMenu.h"
#include "platform/qt/KeyMap.h"
#include "platform/qt/TextBridge.h"
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

void EditBox::shortcutAsked(QKeyEvent& event) const { event.setAccepted(claims(strokeOf(event))); }

void EditBox::keyPressed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    // Tab arrives here only when there is nowhere to go.
    event.setAccepted(!isPlainTab(stroke) && strike(stroke));
    Edit_.typeCommitted(viewOf(furtherCharacters(stroke, event.text())));
}

bool EditBox::strike(const KeyStroke& stroke) {
    const EditAction action = actionFor(stroke);
    // The editor does not know which way a text runs.
    if (!isStep(action) || !isMirrored()) return Edit_.strike(stroke);
    std::int16_t code = stroke.code;
    Edit_.listener().Text1_KeyDown(code, stroke.modifiers);
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
    Edit_.select({extend ? selection.anchor : caret, caret});
}

// ---- Input methods

void EditBox::inputMethodSpoke(QInputMethodEvent& event) {
    if (Edit_.locked()) {
        event.ignore();
        return;
    }
    const QString committed = event.commitString();
    if (!committed.isEmpty() || event.replacementLength() > 0) {
        QInputMethodEvent finished;
        showComposition(finished);
        if (event.replacementLength() > 0) {
            Edit_.setSelStart(static_cast<std::int32_t>(buffer().selection().caret) + event.replacementStart());
            Edit_.setSelLength(event.replacementLength());
            if (committed.isEmpty()) Edit_.perform(EditAction::EraseSelection);
        }
        Edit_.typeCommitted(viewOf(committed));
        if (event.preeditString().isEmpty()) return;
    }
    QInputMethodEvent composition(event.preeditString(), event.attributes());
    showComposition(composition);
}

/// In front of the selection, which gives way when the composition is committed and not before: it may yet be
/// cancelled.
void EditBox::showComposition(QInputMethodEvent& event) {
    bringUpToDate();
    const ShowingScope scope(Showing_);
    const Selection selection = buffer().selection();
    const Selection composing{selection.start(), selection.start()};
    const bool ends = event.preeditString().isEmpty();
    // Not while something is being composed: that would commit it.
    if (!ends && shownSelection() != composing) showSelection(composing);
    compose(event);
    Composing_ = !ends;
    if (ends && shownSelection() != selection) showSelection(selection);
}

// ---- Mouse

void EditBox::takeAim() {
    if (Aim_ < 0) return;
    Edit_.setSelStart(Aim_);
    bringUpToDate();
}

void EditBox::mousePressed(const QMouseEvent& event) {
    takeAim();
    Aim_ = -1;
    LeftPressed_ = event.button() == Qt::LeftButton;
    Edit_.pressMouse(buttonOf(event.button()));
}

void EditBox::mouseReleased(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !std::exchange(LeftPressed_, false)) return;
    if (mouseArea().rect().contains(event.position().toPoint())) Edit_.click();
}

void EditBox::menuAsked(const QPoint& globalPosition) { showEditMenu(*this, globalPosition); }

void EditBox::pastePicked(const QString& text) {
    if (!text.isEmpty()) Edit_.paste(viewOf(text));
}

bool EditBox::wheelTurned(const QWheelEvent& event) {
    const int turned = event.angleDelta().y();
    if (turned == 0 || !field().widget().hasFocus() || !Edit_.listener().Text1_UsesWheel()) return false;
    const bool turnedBack = (turned > 0) != (TurnedRest_ > 0);
    TurnedRest_ = turnedBack ? turned : TurnedRest_ + turned;
    const int notches = TurnedRest_ / QWheelEvent::DefaultDeltasPerStep;
    TurnedRest_ %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) Edit_.listener().Text1_Wheel(notches);
    return true;
}

}  // namespace kel::qt
