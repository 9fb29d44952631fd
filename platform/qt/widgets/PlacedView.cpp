#include "platform/qt/widgets/PlacedView.h"

#include <QAccessible>
#include <QWidget>

#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

namespace {

QAccessibleInterface* accessibleOf(const QString& /*className*/, QObject* object) {
    auto* const view = dynamic_cast<PlacedView*>(object);
    return view != nullptr ? view->makeAccessible() : nullptr;
}

}  // namespace

PlacedView::PlacedView(ControlSite& site, QWidget& widget, Widget& shown)
    : Site_(site), Widget_(widget), Shown_(shown) {
    static const bool Installed = (QAccessible::installFactory(&accessibleOf), true);
    static_cast<void>(Installed);
}

void PlacedView::placeAgain() { Widget_.setGeometry(place()); }

QRect PlacedView::place() const { return Site_.pixelRect(Shown_.bounds()); }

}  // namespace kel::qt
