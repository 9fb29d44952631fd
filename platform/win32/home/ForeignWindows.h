#pragma once

#include <windows.h>

#include "forms/Home.h"
#include "platform/win32/base/TwipGrid.h"

namespace kel::win32 {

/// A window of the system that stands for a block that is not ours and holds no others.
HWND makeForeignWindow(const ForeignBlock& block, const TwipGrid& grid, HWND parent);

/// Where it stands in its parent, in pixels.
RECT foreignPlace(const ForeignBlock& block, const TwipGrid& grid);

/// A window that others are placed in, and the frame with its title, a child that belongs behind them.
struct PanelWindows {
    HWND panel = nullptr;
    HWND frame = nullptr;
};

PanelWindows makePanel(const ForeignBlock& block, const TwipGrid& grid, HWND parent);

}  // namespace kel::win32
