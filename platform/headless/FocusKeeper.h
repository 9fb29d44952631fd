#pragma once

#include <cstdint>
#include <string_view>

#include "host/focus/TabOrder.h"
#include "platform/headless/Input.h"

namespace kel::headless {

class FocusKeeper;
class FocusTarget;
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
    FocusTarget* holder() const { return Holder_; }

    /// Does nothing when `target` takes no input.
    void moveTo(FocusTarget& target);

    /// As the Tab key does.
    void moveByTab(bool back);

    /// A widget or a control was disabled or hidden: the focus goes on from what can no longer have it.
    void recheck();

    /// The widget is about to go, without a word to anybody.
    void forget(const FocusTarget& target);
    void forget(const Seat& seat);

private:
    void move(FocusTarget* target);
    void moveTo(TabStop* stop, bool byTab);
    bool leaveHolder(std::uint32_t turn);
    bool leaveSeat(std::uint32_t turn);
    bool enterSeat(std::uint32_t turn);
    Seat* destination() const;

    Input& Input_;
    FormWindow& Window_;
    const TabOrder& Order_;
    FocusTarget* Holder_ = nullptr;
    FocusTarget* Target_ = nullptr;  ///< where the move under way goes
    Seat* Entered_ = nullptr;        ///< whose control has been entered and not yet left
    std::uint32_t Turn_ = 0;         ///< counts the moves
};

/// A widget that can have the focus, as its window works it.
class FocusTarget {
public:
    explicit FocusTarget(Seat& seat) : Seat_(seat) {}
    FocusTarget(const FocusTarget&) = delete;
    FocusTarget& operator=(const FocusTarget&) = delete;
    virtual ~FocusTarget() { Seat_.focus.forget(*this); }

    Seat& seat() const { return Seat_; }

    /// Enabled and visible, control and all.
    virtual bool takesInput() const = 0;

    virtual void gotFocus() = 0;
    virtual void lostFocus() = 0;
    virtual void strike(const KeyStroke& stroke) = 0;

    /// The left mouse button, pressed and released; `position` in the text, if it has one, may be past either end.
    virtual void click(std::int32_t position) = 0;
    virtual void rightClick() = 0;
    /// A mouse button goes down anywhere in the window, before what it is meant for hears of it.
    virtual void mousePressed() {}

    /// The wheel, over the widget that has the focus.
    virtual void turnWheel(std::int32_t notches) = 0;
    /// Text dragged from elsewhere, when the widget has taken the focus; `position` as for a click.
    virtual void drop(std::int32_t position, std::u16string_view text) = 0;

private:
    Seat& Seat_;
};

}  // namespace kel::headless
