#include "platform/qt/EditBox.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kel::qt {

// ---- By code

void EditBox::setText(std::u16string_view text) {
    ShowsNew_ = true;
    Editor_.setText(text);
}

void EditBox::setLocked(bool locked) {
    if (locked == Editor_.locked()) return;
    Editor_.setLocked(locked);
    showLocked(locked);
}

void EditBox::setPasswordChar(char16_t character) {
    if (character == Editor_.passwordChar()) return;
    Editor_.setPasswordChar(character);
    showPasswordChar(character);
}

// ---- To Qt's widget

void EditBox::bufferChanged() {
    const ShowingScope scope(Showing_);
    const Selection selection = buffer().selection();
    if (std::exchange(ShowsNew_, false))
        showNew(buffer().text());
    else
        showEdited(buffer().text(), selection.caret);
    if (shownSelection() != selection) showSelection(selection);
}

// ---- From Qt's widget: the way of a screen reader, say, that writes into it

void EditBox::textChangedInWidget() {
    if (Showing_) return;
    const std::u16string text = shownText();
    if (textEquals(text)) return;
    const Selection selection = shownSelection();
    Editor_.setText(text);
    Editor_.select(selection);
}

void EditBox::selectionChangedInWidget() {
    if (Showing_) return;
    const Selection selection = shownSelection();
    if (selection != buffer().selection()) Editor_.select(selection);
}

// ---- Clipboard and menu

bool EditBox::offers(EditAction action) const {
    if (action == EditAction::Paste && QGuiApplication::clipboard()->text().isEmpty()) return false;
    return Editor_.offers(action);
}

std::u16string EditBox::clipboardText() {
    if (const auto incoming = std::exchange(Incoming_, std::nullopt)) return std::u16string(viewOf(*incoming));
    return std::u16string(viewOf(QGuiApplication::clipboard()->text()));
}

void EditBox::setClipboardText(std::u16string_view text) {
    QString copied = toQString(text);
    // Programs here expect single line feeds.
    if (buffer().multiLine()) copied.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QGuiApplication::clipboard()->setText(copied);
}

}  // namespace kel::qt
