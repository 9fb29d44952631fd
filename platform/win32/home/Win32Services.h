#pragma once

#include "host/System.h"
#include "platform/win32/home/Win32Region.h"
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
    TwipScale scale() const override;
};

/// What the default run-time object takes from the system.
class Win32RuntimeServices final : public RuntimeServices {
public:
    /// `region` outlives it.
    explicit Win32RuntimeServices(const RegionalSettings& region = systemRegion()) : Region_(region) {}

    std::int32_t colorDepth() const override;
    const RegionalSettings& region() const override { return Region_; }
    FontChoice captionFont() const override { return messageFont(); }
    FontChoice fieldFont() const override { return messageFont(); }
    void sendKey(std::int16_t keyCode) override;

private:
    static FontChoice messageFont();

    const RegionalSettings& Region_;
};

}  // namespace kel::win32
