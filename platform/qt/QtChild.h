#pragma once

#include <QWidget>

#include "host/Geometry.h"
#include "platform/qt/ControlSite.h"

namespace kel::qt {

/// What all child widgets on Qt have in common. `Interface` is one of the widgets of host/Widgets.h, `Child` is
/// what the composite knows it as.
template <class Interface, class Child>
class QtChild : public Interface, public Child {
public:
    Rect bounds() const override { return Bounds_; }
    void move(const Rect& bounds) override {
        if (bounds == Bounds_) return;
        Bounds_ = bounds;
        placeAgain();
    }

    bool enabled() const override { return !this->widget().testAttribute(Qt::WA_ForceDisabled); }
    void setEnabled(bool enabled) override { this->widget().setEnabled(enabled); }

    void placeAgain() override { this->widget().setGeometry(this->site().pixelRect(Bounds_)); }

protected:
    QtChild(ControlSite& site, QWidget& widget) : Child(site, widget) {}

private:
    Rect Bounds_;
};

}  // namespace kel::qt
