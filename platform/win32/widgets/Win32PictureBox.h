#pragma once

#include "host/widgets/PictureBox.h"
#include "platform/win32/base/Gdi.h"
#include "platform/win32/base/SystemWindow.h"

namespace kel::win32 {

class CanvasText;

/// A picture box: the system's progress bar, for those who cannot see it, with a picture of our own.
class Win32PictureBox final : public PictureView, public WindowedView, private PaintedWindow {
public:
    Win32PictureBox(ControlFrame& frame, PictureBox& box);
    ~Win32PictureBox() override;

    // ---- PictureView

    void outOfDate() override;
    void paintAgain() override;
    Size extentOf(std::u16string_view text) const override;
    void paintNow() override;

    // ---- WindowedView

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    bool shown() const override { return true; }
    void rescale() override;
    LRESULT notified(UINT /*notification*/, LPARAM /*details*/) override { return 0; }
    void draw(const Canvas& canvas) const override;

private:
    void showToolTip();

    POINT placeOf(const CanvasText& text, const Canvas& canvas, std::wstring_view units) const;
    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;

    PictureBox& Box_;
    Font Font_;
};

}  // namespace kel::win32
