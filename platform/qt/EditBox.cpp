#include "platform/qt/EditBox.h"

#include <QClipboard>
#include <QGuiApplication>

#include "host/editing/TextDifference.h"
#include "platform/qt/TextBridge.h"

namespace kel::qt {

// ---- To Qt's widget

void EditBox::bufferChanged() {
    if (Adopting_ || std::exchange(OutOfDate_, true)) return;
    // Any change ends a composition, and an end that came later would be taken for the user's.
    if (Composing_ || !postponesShowing()) showBuffer();
}

void EditBox::showBuffer() {
    OutOfDate_ = false;
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
    if (textIs(text)) return;
    const Selection selection = shownSelection();
    if (!adopt(text, selection.caret)) Edit_.setText(text);
    if (textIs(text)) Edit_.select(selection);
    bringUpToDate();
}

/// As an edit that can be undone. False when it would split a line break.
bool EditBox::adopt(std::u16string_view text, std::size_t caret) {
    const TextDifference difference = differenceOf(buffer().text(), text, caret);
    const Selection replaced{difference.start, difference.end};
    {
        const ShowingScope scope(Adopting_);
        Edit_.select(replaced);
    }
    if (buffer().selection() != replaced) return false;
    const std::u16string_view written = text.substr(difference.start, difference.newEnd - difference.start);
    Edit_.listener().Text1_Edit(written.empty() ? EditAction::EraseSelection : EditAction::Paste);
    Edit_.setSelText(written);
    return true;
}

void EditBox::selectionChangedInWidget() {
    if (Showing_) return;
    const Selection selection = shownSelection();
    // Where Qt speaks of the caret first, the text it stands in is still to come.
    const bool isKnown = selection.end() <= buffer().text().size();
    if (isKnown && selection != buffer().selection()) Edit_.select(selection);
    bringUpToDate();
}

// ---- Clipboard and menu

bool EditBox::offers(EditAction action) const {
    if (action == EditAction::Paste && QGuiApplication::clipboard()->text().isEmpty()) return false;
    return Edit_.offers(action);
}

std::u16string EditBox::clipboardText() { return std::u16string(viewOf(QGuiApplication::clipboard()->text())); }

void EditBox::setClipboardText(std::u16string_view text) {
    QString copied = toQString(text);
    // Programs here expect single line feeds.
    if (buffer().multiLine()) copied.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QGuiApplication::clipboard()->setText(copied);
}

}  // namespace kel::qt
