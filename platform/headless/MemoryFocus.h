#pragma once

#include "host/focus/FocusOrder.h"
#include "host/focus/TabOrder.h"
#include "platform/headless/Input.h"

namespace kel::headless {

/// The focus of one window in memory, where a move has arrived as soon as it is asked for.
class MemoryFocus {
public:
    /// All of it outlives the keeper.
    MemoryFocus(Input& input, FormWindow& window, const TabOrder& stops)
        : Input_(input), Window_(window), Stops_(stops) {}

    /// The widget with the focus, nullptr while nothing has it.
    FieldWidget* holder() const { return Order_.holder(); }

    void moveTo(FieldWidget& target);

    /// As the Tab key does.
    void moveByTab(bool back);

    /// A widget or a control was disabled or hidden: the focus goes on from what can no longer have it.
    void recheck();

    /// The control is about to go, without a word to anybody.
    void forget(const WidgetHost& control) { Order_.forget(control); }

private:
    void moveTo(const TabStop& stop, bool byTab);

    Input& Input_;
    FormWindow& Window_;
    const TabOrder& Stops_;
    FocusOrder Order_;
};

}  // namespace kel::headless
