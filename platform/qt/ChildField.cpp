#include "platform/qt/ChildField.h"

#include <QWidget>

#include "platform/qt/ControlSite.h"
#include "platform/qt/FocusTracker.h"
#include "platform/qt/FocusWay.h"

namespace kel::qt {

ChildField::ChildField(ControlSite& site, QWidget& widget, FieldWidget& shown)
    : ChildWidget(site, widget, shown), Shown_(shown) {
    site.addField(*this);
}

ChildField::~ChildField() {
    focus::forget(*this);
    site().removeField(*this);
}

bool ChildField::takesFocus() const { return qt::takesFocus(widget()); }

void ChildField::giveUpFocus() {
    if (widget().window()->focusWidget() == &widget()) focus::passOn(*this);
    focus::departed(*this, Qt::OtherFocusReason);
}

int ChildField::widthFor(int characters) const { return characters * widget().fontMetrics().averageCharWidth(); }

}  // namespace kel::qt
