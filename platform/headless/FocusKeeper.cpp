#include "platform/headless/FocusKeeper.h"

#include <utility>

#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

namespace {

Seat& seatOf(const FieldWidget& field) { return static_cast<PlacedHeadlessControl&>(field.host()).seat(); }

}  // namespace

void FocusKeeper::moveTo(FieldWidget& target) {
    if (target.takesInput() && &target != Holder_) move(&target);
}

void FocusKeeper::moveTo(TabStop* stop, bool byTab) {
    const Input::TabKey held(Input_, byTab);
    move(stop != nullptr ? static_cast<PlacedHeadlessControl*>(stop)->focusTarget() : nullptr);
}

void FocusKeeper::moveByTab(bool back) {
    const TabStop* const from = Holder_ != nullptr ? &seatOf(*Holder_).owner : nullptr;
    if (TabStop* const next = Order_.next(from, back)) moveTo(next, true);
}

/// Also from where it was just about to come.
void FocusKeeper::recheck() {
    const FieldWidget* const barred = Holder_ != nullptr ? Holder_ : Target_;
    if (barred == nullptr || barred->takesInput()) return;
    TabStop& stop = seatOf(*barred).owner;
    TabStop* const next = Order_.afterBarred(stop);
    moveTo(next, next != &stop);
}

void FocusKeeper::forget(const Seat& seat) {
    if (Holder_ != nullptr && &seatOf(*Holder_) == &seat) Holder_ = nullptr;
    if (Target_ != nullptr && &seatOf(*Target_) == &seat) Target_ = nullptr;
    if (Entered_ == &seat) Entered_ = nullptr;
}

void FocusKeeper::move(FieldWidget* target) {
    const std::uint32_t turn = ++Turn_;
    Target_ = target;
    if (!leaveHolder(turn) || !leaveSeat(turn) || !enterSeat(turn)) return;
    if (destination() == nullptr) {
        leaveSeat(turn);
        return;
    }
    Holder_ = std::exchange(Target_, nullptr);
    Input_.activate(Window_);
    Holder_->gotFocus();
}

/// Where the focus goes, if it can still go there.
Seat* FocusKeeper::destination() const {
    return Target_ != nullptr && Target_->takesInput() ? &seatOf(*Target_) : nullptr;
}

// Each step returns false when somebody it told has moved the focus.

bool FocusKeeper::leaveHolder(std::uint32_t turn) {
    if (Holder_ != nullptr) std::exchange(Holder_, nullptr)->lostFocus();
    return turn == Turn_;
}

bool FocusKeeper::leaveSeat(std::uint32_t turn) {
    if (Entered_ != nullptr && Entered_ != destination()) std::exchange(Entered_, nullptr)->control->ExitFocus();
    return turn == Turn_;
}

bool FocusKeeper::enterSeat(std::uint32_t turn) {
    if (Entered_ == nullptr && destination() != nullptr) {
        Entered_ = destination();
        Entered_->control->EnterFocus();
    }
    return turn == Turn_;
}

}  // namespace kel::headless
