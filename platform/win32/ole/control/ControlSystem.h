#pragma once

#include "platform/win32/home/Win32Services.h"

namespace kel::win32::ole {

class OleControl;

/// The machine as one control sees it: its message boxes stand in front of its own window, and its container is
/// told that it has to wait for them.
class ControlSystem final : public Win32System {
public:
    explicit ControlSystem(OleControl& control) : Control_(control) {}

    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override;

private:
    OleControl& Control_;
};

}  // namespace kel::win32::ole
