#pragma once

#include "platform/win32/SystemWindow.h"
#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// A picture box: the system's progress bar, for those who cannot see it, with a picture of our own.
class Win32PictureBox final : public Win32TextualWidget<PictureBox>, public ChildWidget, private PaintedWindow {
public:
    explicit Win32PictureBox(ControlFrame& frame);
    ~Win32PictureBox() override;

    // ---- PictureBox

    void refresh() override;

    std::u16string toolTip() const override { return ToolTip_; }
    void setToolTip(std::u16string_view text) override;

    std::int32_t textWidth(std::u16string_view text) const override;
    std::int32_t textHeight(std::u16string_view text) const override;

    const BarPicture& picture() const override { return Picture_; }
    void clear() override { draw(BarPicture()); }
    void draw(const BarPicture& picture) override;

    // ---- ChildWidget

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    bool shown() const override { return true; }
    void frameEnabledChanged() override {}
    void rescale() override;
    LRESULT notified(UINT /*notification*/, LPARAM /*details*/) override { return 0; }
    void draw(HDC context, POINT origin) const override;

private:
    void placeChanged() override;
    void enabledChanged() override;
    void fontChanged() override { refresh(); }
    void showToolTip();
    SIZE pixelsOf(std::u16string_view text) const;

    void paint(HDC context, const RECT& area) const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;

    BarPicture Picture_;
    std::u16string ToolTip_;
};

}  // namespace kel::win32
