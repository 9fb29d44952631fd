#include "platform/qt/WidgetLook.h"

#include <QApplication>

#include "platform/qt/ComboList.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/TextBridge.h"

namespace kel::qt {

QFont fontLike(const QFont& base, std::u16string_view family, double size) {
    QFont font = base;
    if (!family.empty() && font.family() != qtViewOf(family)) font.setFamilies({toQString(family)});
    if (size > 0) font.setPointSizeF(size);
    return font;
}

void setWidgetFont(QWidget& widget, const QFont& font) {
    if (font != widget.font()) widget.setFont(font);
}

void setWidgetToolTip(QWidget& widget, std::u16string_view text) {
    if (widget.toolTip() != qtViewOf(text)) widget.setToolTip(toQString(text));
}

void colorWidget(QWidget& widget, const FieldColors& colors) {
    widget.setPalette(fieldPalette(colors, widget.parentWidget()->palette()));
}

void focusWidget(QWidget& widget) {
    if (!focus::isChanging()) {
        // An open list would keep the keys, and its box the focus.
        auto* const list = dynamic_cast<ComboList*>(QApplication::activePopupWidget());
        if (list != nullptr && !widget.hasFocus()) list->close();
        widget.setFocus(Qt::OtherFocusReason);
        return;
    }
    QMetaObject::invokeMethod(
        &widget, [&widget] { widget.setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
}

}  // namespace kel::qt
