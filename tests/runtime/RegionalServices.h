#pragma once

#include "runtime/KelRuntime.h"

namespace kel {

/// A platform for run-time objects that differs from others in its region and colours alone.
class RegionalServices final : public RuntimeServices {
public:
    std::int32_t colorDepth() const override { return Depth; }
    const RegionalSettings& region() const override { return *Region; }
    FontChoice captionFont() const override { return {}; }
    FontChoice fieldFont() const override { return {}; }
    void sendKey(std::int16_t) override {}

    const RegionalSettings* Region = &defaultRegion();
    std::int32_t Depth = 24;
};

}  // namespace kel
