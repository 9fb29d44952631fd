#pragma once

#include "platform/win32/SystemWindow.h"
#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// A spinner: the system's up-down control, which holds no number here and only says which of its buttons is
/// pressed or held.
class Win32UpDown final : public Win32Widget<UpDown>, public ChildWidget, private SystemWindow {
public:
    Win32UpDown(ControlFrame& frame, UpDownListener& listener);
    ~Win32UpDown() override;

    // ---- UpDown

    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override;
    std::int32_t value() const override { return Value_; }
    void setValue(std::int32_t value) override { Value_ = value; }

    // ---- ChildWidget

    HWND window() const override { return windowHandle(); }
    void makeWindow() override;
    bool shown() const override { return Visible_; }
    void frameEnabledChanged() override;
    void rescale() override { placeWindow(window()); }
    LRESULT notified(UINT notification, LPARAM details) override;
    void draw(HDC context, POINT origin) const override;

    bool acceptsInput() const { return enabled() && Visible_ && frame().acceptsInput(); }

private:
    using Win32Widget::frame;

    void placeChanged() override;
    void enabledChanged() override;
    bool looksEnabled() const { return enabled() && frame().enabled(); }

    LRESULT handle(UINT message, WPARAM wide, LPARAM data) override;
    LRESULT step(UINT message, WPARAM wide, LPARAM data);
    bool isHeld() const;
    void letButtonGo(WPARAM timer);

    UpDownListener& Listener_;
    std::int32_t Value_ = Rest;
    std::int32_t Pressed_ = Rest;  ///< by the message in hand
    bool Visible_ = false;
};

}  // namespace kel::win32
