#include "platform/qt/ChildWidget.h"

#include "platform/qt/ControlSite.h"

namespace kel::qt {

ChildWidget::ChildWidget(ControlSite& site, QWidget& widget) : Site_(site), Widget_(widget) { site.add(*this); }

ChildWidget::~ChildWidget() { Site_.remove(*this); }

}  // namespace kel::qt
