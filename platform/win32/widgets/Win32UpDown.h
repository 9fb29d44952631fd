#pragma once

#include "host/widgets/UpDown.h"
#include "platform/win32/base/SystemWindow.h"

namespace kel::win32 {

/// A spinner: the system's up-down control, which holds no number here and only says which of its buttons is
/// pressed or held.
class Win32UpDown final : public View, public WindowedView, private SystemWindow {
public:
    Win32UpDown(ControlFrame& frame, UpDown& spinner);
    ~Win32UpDown() override;

    // ---- View

    void outOfDate() override;
    void paintAgain() override { frame().viewChanged(); }

    // ---- WindowedView

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    bool shown() const override { return Spinner_.visible(); }
    void frameEnabledChanged() override;
    void rescale() override { place(); }
    LRESULT notified(UINT notification, LPARAM details) override;
    void draw(const Canvas& canvas) const override;

private:
    bool looksEnabled() const { return Spinner_.enabled() && frame().enabled(); }

    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;
    LRESULT step(UINT message, WPARAM wide, LPARAM data);
    bool isHeld() const;
    void letButtonGo(WPARAM timer);

    UpDown& Spinner_;
    std::int32_t Pressed_ = UpDown::Rest;  ///< by the message in hand
};

}  // namespace kel::win32
