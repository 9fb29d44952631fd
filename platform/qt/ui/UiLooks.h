#pragma once

#include "platform/qt/ui/BlockReader.h"
#include "platform/qt/ui/UiWriter.h"

/// Fonts and colours of a form's blocks.
namespace kel::qt {

/// A block that says nothing of its font has that of the window around it, which has `basePoints` unless it says so.
void writeFont(BlockReader& block, UiWriter& ui, int basePoints, bool isWindow);

/// The roles are those of a palette; `mustFill`: a ground of its own is not filled unless the widget is told to.
void writeColors(BlockReader& block, UiWriter& ui, const char* textRole, const char* groundRole, bool mustFill);

}  // namespace kel::qt
