#include "platform/headless/MemoryFocus.h"

#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

namespace {

PlacedHeadlessControl& placedWith(const FieldWidget& field) {
    return static_cast<PlacedHeadlessControl&>(field.host());
}

}  // namespace

void MemoryFocus::moveTo(FieldWidget& target) {
    Input_.activate(Window_);
    Order_.arrived(target);
}

void MemoryFocus::moveTo(const TabStop& stop, bool byTab) {
    const TabKey::Scope tab(Input_.Tab, byTab);
    moveTo(*stop.focusTarget());
}

void MemoryFocus::moveByTab(bool back) {
    const TabStop* const from = holder() != nullptr ? &placedWith(*holder()) : nullptr;
    if (const TabStop* const next = Stops_.next(from, back)) moveTo(*next, true);
}

void MemoryFocus::recheck() {
    const FieldWidget* const barred = Order_.target();
    if (barred == nullptr || barred->takesInput()) return;
    TabStop& stop = placedWith(*barred);
    if (const TabStop* const next = Stops_.afterBarred(stop))
        moveTo(*next, next != &stop);
    else
        Order_.drop();
}

}  // namespace kel::headless
