#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "library/Runtime.h"
#include "values/RegionalSettings.h"

namespace kel {

struct FontChoice {
    std::u16string name;
    double size = 8;  ///< points; 0 for the one that a field has by itself
};

/// What the default run-time object needs of its platform.
class RuntimeServices {
public:
    /// Bits per pixel of the display.
    virtual std::int32_t colorDepth() const = 0;
    virtual const RegionalSettings& region() const = 0;
    virtual FontChoice captionFont() const = 0;
    virtual FontChoice fieldFont() const = 0;
    /// Presses and releases a key as the user would, after the current event has been handled.
    virtual void sendKey(std::int16_t keyCode) = 0;

protected:
    ~RuntimeServices() = default;
};

/// The default run-time object. `services` outlives it.
std::shared_ptr<Runtime> makeRuntime(RuntimeServices& services);

}  // namespace kel
