#include "platform/qt/control/FocusWay.h"

#include <QApplication>
#include <QWidget>

#include "platform/qt/widgets/ComboList.h"

namespace kel::qt {

/// While Qt disables or hides something it has not come to all that is in it, which does not know yet.
bool takesFocus(const QWidget& widget) {
    for (const QWidget* around = &widget; around->isEnabled(); around = around->parentWidget()) {
        if (around->isWindow()) return true;
        if (around->isHidden()) return false;
    }
    return false;
}

void focusWidget(QWidget& widget, Qt::FocusReason reason) {
    if (!takesFocus(widget)) return;
    // An open list would keep the keys, and its box the focus.
    auto* const list = dynamic_cast<ComboList*>(QApplication::activePopupWidget());
    if (list != nullptr && !widget.hasFocus()) list->close();
    widget.setFocus(reason);
}

QWidget* nextByTab(const QWidget& from) {
    for (QWidget* next = from.nextInFocusChain(); next != &from; next = next->nextInFocusChain()) {
        const bool stops = (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
        if (stops && !next->isWindow() && takesFocus(*next)) return next;
    }
    return nullptr;
}

}  // namespace kel::qt
