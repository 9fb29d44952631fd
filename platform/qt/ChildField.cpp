#include "platform/qt/ChildField.h"

#include "platform/qt/ControlSite.h"
#include "platform/qt/FocusTracker.h"

namespace kel::qt {

ChildField::ChildField(ControlSite& site, QWidget& widget) : Site_(site), Widget_(widget) { site.add(*this); }

ChildField::~ChildField() {
    focus::forget(*this);
    Site_.remove(*this);
}

}  // namespace kel::qt
