#pragma once

#include "host/LocalClock.h"
#include "host/System.h"

namespace kel::qt {

/// The desktop's own clock, message boxes and keyboard.
class QtSystem final : public System {
public:
    explicit QtSystem(std::int32_t twipsPerPixel) : TwipsPerPixel_(twipsPerPixel) {}

    Date today() const override { return Clock_.today(); }
    double timer() const override { return Clock_.secondsSinceMidnight(); }
    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override;
    void beep() override;
    bool tabKeyDown() const override;
    std::int32_t twipsPerPixel() const override { return TwipsPerPixel_; }

private:
    std::int32_t TwipsPerPixel_;
    mutable LocalClock Clock_;
};

}  // namespace kel::qt
