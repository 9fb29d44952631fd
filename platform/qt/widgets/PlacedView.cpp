#include "platform/qt/widgets/PlacedView.h"

#include <QWidget>

#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

PlacedView::PlacedView(ControlSite& site, QWidget& widget, Widget& shown)
    : Site_(site), Widget_(widget), Shown_(shown) {
    site.add(*this);
}

PlacedView::~PlacedView() { Site_.remove(*this); }

void PlacedView::placeAgain() { Widget_.setGeometry(Site_.pixelRect(Shown_.bounds())); }

}  // namespace kel::qt
