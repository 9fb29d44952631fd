#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "host/TwipScale.h"
#include "values/Variant.h"

namespace kel {

struct RegionalSettings;
struct SharedSettings;
class Container;
class WidgetHost;

/// What a control needs of the machine around it.
class System {
public:
    /// The date without a time of day.
    virtual Date today() const = 0;
    /// Seconds since midnight.
    virtual double timer() const = 0;

    /// A modal box; `style` 64 is the information icon with one OK button.
    virtual void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) = 0;
    virtual void beep() = 0;

    /// Whether the Tab key is down at this moment.
    virtual bool tabKeyDown() const = 0;

    /// Of the screen: 15 twips on a pixel at 96 dots per inch.
    virtual TwipScale scale() const = 0;

protected:
    ~System() = default;
};

/// Everything outside that one control works with. Outlives the control.
struct ControlHost {
    Container& container;
    WidgetHost& widgets;
    System& system;
    SharedSettings& settings;
    std::reference_wrapper<const RegionalSettings> region;
};

}  // namespace kel
