#pragma once

#include "forms/Home.h"
#include "runtime/KelRuntime.h"

namespace kel::qt {

/// What the default run-time object takes from the desktop.
class QtServices final : public RuntimeServices {
public:
    explicit QtServices(const HomeOptions& options);

    std::int32_t colorDepth() const override;
    const RegionalSettings& region() const override { return Region_; }
    FontChoice captionFont() const override { return Font_; }
    FontChoice fieldFont() const override { return Font_; }
    void sendKey(std::int16_t keyCode) override;

private:
    RegionalSettings Region_;
    std::int32_t ColorDepth_;  ///< 0: the display's
    FontChoice Font_;          ///< of captions and fields, so that they look like one line
};

}  // namespace kel::qt
