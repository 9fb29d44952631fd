#pragma once

#include <cstdint>

#include "host/widgets/Widget.h"

namespace kel {

/// A pair of arrow buttons, one above the other, that never take the focus. Its value rests at 1 until a
/// button is pressed. A new spinner is enabled and hidden.
class UpDown : public Widget {
public:
    static constexpr std::int32_t Down = 0;
    static constexpr std::int32_t Rest = 1;
    static constexpr std::int32_t Up = 2;

    virtual bool visible() const = 0;
    virtual void setVisible(bool visible) = 0;

    virtual std::int32_t value() const = 0;
    /// Notifies nobody.
    virtual void setValue(std::int32_t value) = 0;
};

class UpDownListener {
public:
    /// A button was pressed, or is held and repeats: the value is `UpDown::Up` or `UpDown::Down`. The handler
    /// puts it back to rest.
    virtual void UpDown1_Change() = 0;

protected:
    ~UpDownListener() = default;
};

}  // namespace kel
