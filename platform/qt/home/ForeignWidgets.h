#pragma once

#include "forms/Home.h"
#include "platform/qt/base/TwipGrid.h"

class QWidget;

namespace kel::qt {

/// A stand-in for a block of a class that is not ours. It takes no focus and does nothing. Owned by `parent`. One
/// that holds others is a PlacedPanel.
QWidget* makeForeignWidget(const ForeignBlock& block, const TwipGrid& grid, QWidget& parent);

}  // namespace kel::qt
