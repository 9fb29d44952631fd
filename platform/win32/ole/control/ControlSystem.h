#pragma once

#include "host/System.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

class OleControl;

/// The machine as one control sees it: its message boxes stand in front of its own window, and its container is
/// told that it has to wait for them.
class ControlSystem final : public System {
public:
    ControlSystem(OleControl& control, System& machine) : Control_(control), Machine_(machine) {}

    Date today() const override { return Machine_.today(); }
    double timer() const override { return Machine_.timer(); }
    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override;
    void beep() override { Machine_.beep(); }
    bool tabKeyDown() const override { return Machine_.tabKeyDown(); }
    std::int32_t twipsPerPixel() const override { return Machine_.twipsPerPixel(); }

private:
    OleControl& Control_;
    System& Machine_;
};

}  // namespace kel::win32::ole
