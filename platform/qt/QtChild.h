#pragma once

#include <QWidget>

#include "platform/qt/ControlSite.h"

namespace kel::qt {

/// What all child widgets on Qt have in common. `Interface` is one of the widgets of host/Widgets.h, `Child` is
/// what the composite knows it as.
template <class Interface, class Child>
class QtChild : public Interface, public Child {
public:
    void move(const Rect& bounds) override {
        if (bounds == this->bounds()) return;
        Interface::move(bounds);
        this->placeAgain();
    }

    bool enabled() const override { return !this->widget().testAttribute(Qt::WA_ForceDisabled); }
    void setEnabled(bool enabled) override { this->widget().setEnabled(enabled); }

protected:
    QtChild(ControlSite& site, QWidget& widget) : Child(site, widget, *this) {}
};

}  // namespace kel::qt
