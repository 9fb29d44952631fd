#pragma once

#include <windows.h>

#include "forms/Home.h"
#include "platform/win32/base/TwipGrid.h"

namespace kel::win32 {

/// A window of the system that stands for a block that is not ours. Its parent destroys it.
class ForeignWindow final : public PlacedPanel {
public:
    ForeignWindow(ForeignBlock block, const TwipGrid& grid, HWND parent);

    /// What others are placed in.
    HWND window() const { return Window_; }

    void place(const TwipGrid& grid);
    void setFont(HFONT font);
    /// A panel's frame belongs behind all that has been placed in it.
    void sendFrameBack();

private:
    RECT placeIn(const TwipGrid& grid) const;

    ForeignBlock Block_;
    HWND Window_ = nullptr;
    HWND Frame_ = nullptr;  ///< with the title of a panel, a child of it
};

}  // namespace kel::win32
