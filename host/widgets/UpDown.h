#pragma once

#include "host/widgets/Widget.h"

namespace kel {

class UpDownListener {
public:
    /// A button was pressed, or is held and repeats: the value is `UpDown::Up` or `UpDown::Down`. The handler
    /// puts it back to rest.
    virtual void UpDown1_Change() = 0;

protected:
    ~UpDownListener() = default;
};

/// A pair of arrow buttons, one above the other, that never take the focus. Its value rests at 1 until a
/// button is pressed. A new spinner is enabled and hidden.
class UpDown final : public Widget {
public:
    static constexpr std::int32_t Down = 0;
    static constexpr std::int32_t Rest = 1;
    static constexpr std::int32_t Up = 2;

    UpDown(WidgetHost& host, UpDownListener& listener) : Host_(host), Listener_(listener) {}

    bool visible() const { return Visible_; }
    void setVisible(bool visible);

    /// Enabled and shown, its control as well.
    bool takesInput() const { return enabled() && Visible_ && Host_.takesInput(); }

    std::int32_t value() const { return Value_; }
    /// Notifies nobody.
    void setValue(std::int32_t value) { Value_ = value; }

    /// A person presses one of the buttons, or holds it and it repeats. The listener may do anything, and is told last.
    void press(bool up);

    View* view() const override { return View_.get(); }

private:
    WidgetHost& Host_;
    UpDownListener& Listener_;
    std::int32_t Value_ = Rest;
    bool Visible_ = false;
    std::unique_ptr<View> View_;  ///< none until it is first shown; last: it reads all of the above until it goes
};

}  // namespace kel
