#pragma once

#include "runtime/KelRuntime.h"

namespace kel {

/// A platform for run-time objects that differs from others in its region alone.
class RegionalServices final : public RuntimeServices {
public:
    std::int32_t colorDepth() const override { return 24; }
    const RegionalSettings& region() const override { return *Region; }
    FontChoice captionFont() const override { return {}; }
    FontChoice fieldFont() const override { return {}; }
    void sendKey(std::int16_t) override {}

    const RegionalSettings* Region = &defaultRegion();
};

}  // namespace kel
