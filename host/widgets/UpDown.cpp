#include "host/widgets/UpDown.h"

namespace kel {

void UpDown::press(bool up) {
    if (!takesInput()) return;
    Value_ = up ? Up : Down;
    Listener_.UpDown1_Change();
}

}  // namespace kel
