#include "host/widgets/UpDown.h"

namespace kel {

void UpDown::setVisible(bool visible) {
    if (visible == Visible_) return;
    Visible_ = visible;
    const Changes unseen = takeChanges();
    if (View_ == nullptr) View_ = Host_.makeView(*this);
    changed(unseen | Change::Visible);
}

void UpDown::press(bool up) {
    if (!takesInput()) return;
    Value_ = up ? Up : Down;
    Listener_.UpDown1_Change();
}

}  // namespace kel
