#include "platform/qt/WidgetLook.h"

#include <QWidget>

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

void setWidgetFont(QWidget& widget, const FontFace& font) {
    QFont shown = fontLike(widget.font(), font.name, font.size);
    shown.setBold(font.bold);
    setWidgetFont(widget, shown);
}

void setWidgetToolTip(QWidget& widget, std::u16string_view text) {
    if (widget.toolTip() != qtViewOf(text)) widget.setToolTip(toQString(text));
}

void colorWidget(QWidget& widget, const FieldColors& colors) {
    widget.setPalette(fieldPalette(colors, widget.parentWidget()->palette()));
}

}  // namespace kel::qt
