#include "platform/qt/widgets/ChildField.h"

#include <QWidget>

#include "platform/qt/base/WidgetLook.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/FocusTracker.h"
#include "platform/qt/control/FocusWay.h"

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

void ChildField::showState(Changes changes) {
    if (changes.has(Change::Place)) placeAgain();
    if (changes.has(Change::Enabled)) {
        widget().setEnabled(Shown_.enabled());
        site().fieldEnabled(*this, Shown_.enabled());
    }
    if (changes.has(Change::Visible)) {
        widget().setVisible(Shown_.visible());
        if (Shown_.visible()) site().fieldShown(*this);
    }
    if (changes.has(Change::Font)) setWidgetFont(widget(), fontOf(widget().font(), Shown_.font()));
    if (changes.has(Change::ToolTip)) setWidgetToolTip(widget(), Shown_.toolTip());
}

int ChildField::widthFor(int characters) const { return characters * widget().fontMetrics().averageCharWidth(); }

}  // namespace kel::qt
