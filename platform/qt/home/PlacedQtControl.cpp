#include "platform/qt/home/PlacedQtControl.h"

#include "platform/qt/base/TextBridge.h"

namespace kel::qt {

PlacedQtControl::PlacedQtControl(const ClassModel& model, const Placement& placement, std::size_t order,
                                 const ControlServices& surroundings, ControlObserver& observer, QWidget& parent)
    : KelControlWidget(model, surroundings, &parent),
      TabStop(placement.tabIndex, order, placement.tabStop),
      Observer_(observer),
      Placement_(placement) {
    setObjectName(toQString(placement.name));
    if (!placement.tabStop) site().leaveTabOrder();
    if (!placement.visible) hide();
}

Rect PlacedQtControl::bounds() const {
    const Size size = site().hasSize() ? site().size() : Size{Placement_.bounds.width, Placement_.bounds.height};
    return {Placement_.bounds.left, Placement_.bounds.top, size.width, size.height};
}

void PlacedQtControl::setBounds(const Rect& bounds) {
    Placement_.bounds = bounds;
    move(site().grid().pixels(bounds).topLeft());
    site().setOrigin({bounds.left, bounds.top});
    site().setSize({bounds.width, bounds.height});
}

}  // namespace kel::qt
