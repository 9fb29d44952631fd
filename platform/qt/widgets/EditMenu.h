#pragma once

class QPoint;
class QWidget;

namespace kel {
class TextEntry;
}

namespace kel::qt {

/// Opens the usual menu of an edit box. What it does goes the box's own way, so that lock and maximum length
/// hold.
void showEditMenu(TextEntry& box, QWidget& widget, const QPoint& globalPosition);

}  // namespace kel::qt
