#pragma once

#include "host/System.h"
#include "runtime/KelRuntime.h"

namespace kel::win32 {

/// Clock, message boxes and keyboard of the machine.
class Win32System : public System {
public:
    virtual ~Win32System() = default;
    Date today() const override;
    double timer() const override;
    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override;
    void beep() override;
    bool tabKeyDown() const override;
    std::int32_t twipsPerPixel() const override;
};

/// What the default run-time object takes from the system.
class Win32RuntimeServices final : public RuntimeServices {
public:
    std::int32_t colorDepth() const override;
    const RegionalSettings& region() const override;
    FontChoice captionFont() const override { return messageFont(); }
    FontChoice fieldFont() const override { return messageFont(); }
    void sendKey(std::int16_t keyCode) override;

private:
    static FontChoice messageFont();
};

}  // namespace kel::win32
