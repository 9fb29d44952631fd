#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/qt/EditBox.h"
#include "platform/qt/EditMenu.h"
#include "platform/qt/KeyMap.h"

/// What the user's hands do to an edit box.
namespace kel::qt {

namespace {

MouseButton buttonOf(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

bool isPlainTab(const KeyStroke& stroke) { return stroke.code == keys::Tab && (stroke.modifiers & ControlKey) == 0; }

}  // namespace

// ---- Keys

void EditBox::shortcutAsked(QKeyEvent& event) const { event.setAccepted(claimsKey(strokeOf(event), locked())); }

void EditBox::keyPressed(QKeyEvent& event) {
    const KeyStroke stroke = strokeOf(event);
    // Tab arrives here only when there is nowhere to go.
    event.setAccepted(!isPlainTab(stroke) && strike(stroke, event.text()));
}

bool EditBox::strike(const KeyStroke& stroke, QStringView text) {
    if (stroke.code != 0) {
        std::int16_t code = stroke.code;
        Listener_.Text1_KeyDown(code, stroke.modifiers);
        if (code == 0 || !takesInput()) return true;
    }
    const char32_t character = keyPressCharacter(stroke);
    if (character == 0) return act(actionFor(stroke), 0, (stroke.modifiers & ShiftKey) != 0);
    const bool concernsBox = strikeCharacter(character, stroke);
    // A key of a rich layout may give several characters.
    const qsizetype units = character > 0xFFFF ? 2 : 1;
    if (character >= U' ' && text.size() > units) typeCommitted(text.sliced(units));
    return concernsBox;
}

bool EditBox::strikeCharacter(char32_t character, const KeyStroke& stroke) {
    Listener_.Text1_KeyPress(character);
    if (character == 0 || !takesInput()) return true;
    return act(actionFor(character, stroke.modifiers), character, false);
}

void EditBox::typeCommitted(QStringView text) {
    const KeyStroke noKey;
    for (qsizetype at = 0; at < text.size() && takesInput() && !locked();) {
        const bool isPair = at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
        strikeCharacter(isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t{text[at].unicode()}, noKey);
        at += isPair ? 2 : 1;
    }
}

// ---- Input methods

void EditBox::inputMethodSpoke(QInputMethodEvent& event) {
    if (locked()) {
        event.ignore();
        return;
    }
    const QString committed = event.commitString();
    const bool replaces = event.replacementLength() > 0;
    if (!committed.isEmpty() || replaces) {
        QInputMethodEvent finished;
        showComposition(finished);
        if (replaces) {
            const auto start = static_cast<std::int32_t>(selection().caret) + event.replacementStart();
            setSelStart(start);
            setSelLength(event.replacementLength());
            if (committed.isEmpty()) replaceSelection(EditKind::Single, {});
        }
        typeCommitted(committed);
    }
    if (!event.preeditString().isEmpty() && !selection().empty()) replaceSelection(EditKind::Typing, {});
    if (event.preeditString().isEmpty() && !committed.isEmpty()) return;
    QInputMethodEvent composition(event.preeditString(), event.attributes());
    showComposition(composition);
}

void EditBox::showComposition(QInputMethodEvent& event) {
    // What is being composed is no text yet, though Qt reports it as a change of one.
    const EditScope scope(Editing_);
    compose(event);
}

// ---- Mouse

void EditBox::takeAim() {
    if (Aim_ >= 0) setSelStart(Aim_);
}

void EditBox::mousePressed(const QMouseEvent& event) {
    takeAim();
    Aim_ = -1;
    History_.endRun();
    LeftPressed_ = event.button() == Qt::LeftButton;
    Listener_.Text1_MouseDown(buttonOf(event.button()));
}

void EditBox::mouseReleased(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !std::exchange(LeftPressed_, false)) return;
    if (takesInput() && mouseArea().rect().contains(event.position().toPoint())) Listener_.Text1_Click();
}

void EditBox::menuAsked(const QPoint& globalPosition) { showEditMenu(*this, globalPosition); }

void EditBox::dropped(const Selection& replaced, const QString& text) {
    if (locked()) return;
    setSelection(replaced);
    History_.endRun();
    paste(text);
}

/// One edit of all that lies between, so that handlers see the text once and one undo takes it back.
void EditBox::selectionMoved(std::size_t place) {
    const Selection moved = selection();
    if (locked() || (place >= moved.start() && place <= moved.end())) return;
    if (place < moved.start()) {
        const std::u16string passed = textBetween(place, moved.start());
        edit(EditKind::Single, place, moved.end(), selText() + passed);
        setSelStart(static_cast<std::int32_t>(place + moved.length()));
    } else {
        const std::u16string passed = textBetween(moved.end(), place);
        edit(EditKind::Single, moved.start(), place, passed + selText());
    }
}

}  // namespace kel::qt
