#pragma once

class QPoint;

namespace kel::qt {

class EditBox;

/// Opens the usual menu of an edit box. What it does goes the box's own way, so that lock and maximum length
/// hold.
void showEditMenu(EditBox& box, const QPoint& globalPosition);

}  // namespace kel::qt
