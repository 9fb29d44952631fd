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
    const Selection before = buffer().selection();
    const Selection selection = shownSelection();
    const std::u16string textBefore = buffer().text();
    if (takesInput()) adopt(text, selection.caret);
    if (textIs(text))
        Edit_.select(selection);
    else if (textIs(textBefore))
        Edit_.select(before);
    // What was refused, or changed, stands in Qt's widget all the same.
    OutOfDate_ = true;
    bringUpToDate();
}

/// As a paste in the place of what differs: with its filter, its limit and one step to undo.
void EditBox::adopt(std::u16string_view text, std::size_t caret) {
    TextDifference difference = differenceOf(buffer().text(), text, caret);
    {
        const ShowingScope scope(Adopting_);
        Edit_.select({difference.start, difference.end});
        // No edit begins or ends within a line break.
        if (buffer().selection() != Selection{difference.start, difference.end}) {
            difference = {0, buffer().text().size(), text.size()};
            Edit_.select({difference.start, difference.end});
        }
    }
    if (difference.newEnd == difference.start)
        Edit_.perform(EditAction::EraseSelection);
    else
        Edit_.paste(text.substr(difference.start, difference.newEnd - difference.start));
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
