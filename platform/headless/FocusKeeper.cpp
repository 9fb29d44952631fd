#include "platform/headless/FocusKeeper.h"

#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

namespace {

PlacedHeadlessControl& placedWith(const FieldWidget& field) {
    return static_cast<PlacedHeadlessControl&>(field.host());
}

}  // namespace

void FocusKeeper::moveTo(FieldWidget& target) {
    Input_.activate(Window_);
    Order_.arrived(target);
}

void FocusKeeper::moveTo(const TabStop& stop, bool byTab) {
    const TabKey::Scope tab(Input_.Tab, byTab);
    moveTo(*stop.focusTarget());
}

void FocusKeeper::moveByTab(bool back) {
    const TabStop* const from = holder() != nullptr ? &placedWith(*holder()) : nullptr;
    if (const TabStop* const next = Stops_.next(from, back)) moveTo(*next, true);
}

void FocusKeeper::recheck() {
    const FieldWidget* const barred = Order_.target();
    if (barred == nullptr || barred->takesInput()) return;
    TabStop& stop = placedWith(*barred);
    if (const TabStop* const next = Stops_.afterBarred(stop))
        moveTo(*next, next != &stop);
    else
        Order_.drop();
}

}  // namespace kel::headless
