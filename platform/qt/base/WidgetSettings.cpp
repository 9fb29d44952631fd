#include "platform/qt/base/WidgetSettings.h"

#include <QWidget>

#include "platform/qt/base/TextBridge.h"

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

QFont fontOf(const QFont& base, const FontFace& face) {
    struct Made {
        QFont base;
        FontFace face;
        QFont font;
    };
    static Made Last;
    if (face == FontFace{}) return base;
    const bool isSameBase = base == Last.base && base.resolveMask() == Last.base.resolveMask();
    if (isSameBase && face == Last.face) return Last.font;
    QFont font = fontLike(base, face.name, face.size);
    if (face.bold) font.setBold(true);
    Last = {base, face, font};
    return font;
}

void setWidgetToolTip(QWidget& widget, std::u16string_view text) {
    if (widget.toolTip() != qtViewOf(text)) widget.setToolTip(toQString(text));
}

}  // namespace kel::qt
