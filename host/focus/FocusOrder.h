#pragma once

#include <cstdint>

#include "host/widgets/Widget.h"

namespace kel {

/// Tells widgets and controls where the focus goes, in the order they know: the old widget, the old control, the new
/// control, the new widget. Any of them may move it elsewhere: the later move wins, and the earlier one stops where it
/// is.
///
/// A home says where the focus of its system comes and goes. That it is away for a while, with a menu or another window
/// in front, is no change, and is not said.
class FocusOrder {
public:
    /// The field has got it, or is the next to get it.
    void arrived(FieldWidget& field);
    /// The field has lost it, to a widget of the control with `next` or (nullptr) to what is none of ours. Nothing
    /// happens where the field did not have it.
    void departed(const FieldWidget& field, const WidgetHost* next);
    /// Nothing has it any longer, nor is about to.
    void drop() { move(nullptr, nullptr); }

    /// About to go, without a word to anybody.
    void forget(const FieldWidget& field);
    void forget(const WidgetHost& control);

    /// Who has been told that it has it; nullptr for none.
    FieldWidget* holder() const { return Holder_; }
    /// The holder, or where the focus is about to come.
    FieldWidget* target() const { return Holder_ != nullptr ? Holder_ : Next_; }
    /// The control that has been entered and not yet left.
    WidgetHost* entered() const { return Entered_; }

private:
    void move(FieldWidget* field, const WidgetHost* control);
    bool leaveHolder(std::uint32_t turn);
    bool leaveControl(const WidgetHost* next, std::uint32_t turn);
    bool enterControl(WidgetHost& control, std::uint32_t turn);

    FieldWidget* Holder_ = nullptr;
    FieldWidget* Next_ = nullptr;  ///< where the move under way goes
    WidgetHost* Entered_ = nullptr;
    std::uint32_t Turn_ = 0;  ///< counts the moves
};

}  // namespace kel
