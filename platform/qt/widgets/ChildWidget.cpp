#include "platform/qt/widgets/ChildWidget.h"

#include <QWidget>

#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

ChildWidget::ChildWidget(ControlSite& site, QWidget& widget, Widget& shown)
    : Site_(site), Widget_(widget), Shown_(shown) {
    site.add(*this);
}

ChildWidget::~ChildWidget() { Site_.remove(*this); }

void ChildWidget::placeAgain() { Widget_.setGeometry(Site_.pixelRect(Shown_.bounds())); }

}  // namespace kel::qt
