#include "platform/qt/widgets/ComboFrame.h"

#include <QPainter>
#include <QPalette>

namespace kel::qt {

namespace {

/// What the sunken edge goes around.
QRect framed(const QRect& box) { return box.adjusted(0, 0, 0, -1); }

/// The light falls from the top left, also where the box is mirrored.
void paintLines(QPainter& painter, const QRect& rect, const QColor& topLeft, const QColor& bottomRight) {
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width() - 1, 1), topLeft);
    painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height() - 1), topLeft);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), bottomRight);
    painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), bottomRight);
}

}  // namespace

QRect comboButtonStrip(const QRect& box, int width, bool mirrored) {
    const QRect inner = framed(box).adjusted(ComboEdge, ComboEdge, -ComboEdge, -ComboEdge);
    const int left = mirrored ? inner.left() : inner.right() - width + 1;
    return {left, inner.top(), width, inner.height()};
}

void paintComboFrame(QPainter& painter, const QRect& box, const QRect& strip, const QPalette& palette) {
    const QRect outer = framed(box);
    paintLines(painter, outer, palette.color(QPalette::Dark), palette.color(QPalette::Light));
    paintLines(painter, outer.adjusted(1, 1, -1, -1), palette.color(QPalette::Shadow),
               palette.color(QPalette::Midlight));
    if (strip.isEmpty()) return;
    paintLines(painter, strip, palette.color(QPalette::Midlight), palette.color(QPalette::Shadow));
    paintLines(painter, strip.adjusted(1, 1, -1, -1), palette.color(QPalette::Light), palette.color(QPalette::Dark));
}

}  // namespace kel::qt
