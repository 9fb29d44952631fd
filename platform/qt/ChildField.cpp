#include "platform/qt/ChildField.h"

#include <QWidget>

#include "platform/qt/ControlSite.h"
#include "platform/qt/FocusTracker.h"

namespace kel::qt {

ChildField::ChildField(ControlSite& site, QWidget& widget) : ChildWidget(site, widget) { site.addField(*this); }

ChildField::~ChildField() {
    focus::forget(*this);
    site().removeField(*this);
}

int ChildField::widthFor(int characters) const { return characters * widget().fontMetrics().averageCharWidth(); }

}  // namespace kel::qt
