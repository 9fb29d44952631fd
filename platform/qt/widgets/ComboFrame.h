#pragma once

#include <QRect>

class QPainter;
class QPalette;

/// The edges that a combo box has over the style's own picture of it.
namespace kel::qt {

/// As thick as each edge is.
inline constexpr int ComboEdge = 2;

/// The strip of the button, `width` pixels of it, inside the sunken edge of a box; at its right end, `mirrored` at
/// the left one.
QRect comboButtonStrip(const QRect& box, int width, bool mirrored);

/// A sunken edge around all of the box but its lowest row of pixels, and a raised one around the strip; an empty
/// strip has none.
void paintComboFrame(QPainter& painter, const QRect& box, const QRect& strip, const QPalette& palette);

}  // namespace kel::qt
