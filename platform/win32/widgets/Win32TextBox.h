#pragma once

#include "host/widgets/TextBox.h"
#include "platform/win32/widgets/Win32TextEntry.h"

namespace kel::win32 {

/// A text box: the edit window and nothing else.
class Win32TextBox final : public Win32TextEntry {
public:
    Win32TextBox(ControlFrame& frame, TextBox& box);
    ~Win32TextBox() override { destroy(); }

    std::ptrdiff_t linesOfPage() const override;
    LRESULT notified(UINT notification, LPARAM details) override;
    void draw(const Canvas& canvas) const override;

private:
    bool createWindow() override;
    POINT textCorner() const override;
    void showPlace() override { placeWindow(window(), pixels()); }
    LRESULT handle(HWND window, UINT message, WPARAM wide, LPARAM data) override;

    TextBox& Box_;
};

}  // namespace kel::win32
