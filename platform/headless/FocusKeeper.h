#pragma once

#include <cstdint>

#include "host/focus/TabOrder.h"
#include "host/widgets/Widget.h"
#include "platform/headless/Input.h"

namespace kel::headless {

class FocusKeeper;
class PlacedHeadlessControl;

/// What the widgets of one control know of the place it stands in. Outlives them.
struct Seat {
    FocusKeeper& focus;
    Input& input;
    PlacedHeadlessControl& owner;
    Control* control = nullptr;  ///< none while it is being made
    bool enabled = true;
    bool visible = true;

    bool takesInput() const { return control != nullptr && enabled && visible; }
};

/// The focus of one window. Tells widgets and controls in the order they know it: the old widget, the old
/// control, the new control, the new widget. Any of them may move the focus elsewhere; the later move wins
/// and the earlier one stops where it is.
class FocusKeeper {
public:
    /// All of it outlives the keeper.
    FocusKeeper(Input& input, FormWindow& window, const TabOrder& order)
        : Input_(input), Window_(window), Order_(order) {}

    /// The widget with the focus, nullptr while nothing has it.
    FieldWidget* holder() const { return Holder_; }

    /// Does nothing when `target` takes no input.
    void moveTo(FieldWidget& target);

    /// As the Tab key does.
    void moveByTab(bool back);

    /// A widget or a control was disabled or hidden: the focus goes on from what can no longer have it.
    void recheck();

    /// The control is about to go, without a word to anybody.
    void forget(const Seat& seat);

private:
    void move(FieldWidget* target);
    void moveTo(TabStop* stop, bool byTab);
    bool leaveHolder(std::uint32_t turn);
    bool leaveSeat(std::uint32_t turn);
    bool enterSeat(std::uint32_t turn);
    Seat* destination() const;

    Input& Input_;
    FormWindow& Window_;
    const TabOrder& Order_;
    FieldWidget* Holder_ = nullptr;
    FieldWidget* Target_ = nullptr;  ///< where the move under way goes
    Seat* Entered_ = nullptr;        ///< whose control has been entered and not yet left
    std::uint32_t Turn_ = 0;         ///< counts the moves
};

}  // namespace kel::headless
