#pragma once

#include "forms/Home.h"
#include "host/focus/TabOrder.h"
#include "platform/qt/control/ControlSite.h"
#include "platform/qt/control/KelControlWidget.h"

namespace kel::qt {

/// A control on a form's window, of whichever class.
class PlacedQtControl final : public KelControlWidget, public PlacedControl, public TabStop {
public:
    /// `order` counts the controls placed before.
    PlacedQtControl(const ClassModel& model, const Placement& placement, std::size_t order,
                    const ControlServices& surroundings, ControlObserver& observer, QWidget& parent);

    Control& control() override { return KelControlWidget::control(); }
    const std::u16string& name() const override { return Placement_.name; }
    Rect bounds() const override;
    void setBounds(const Rect& bounds) override;
    std::u16string toolTipText() const override { return site().toolTipText(); }
    void setToolTipText(std::u16string_view text) override { site().setToolTipText(text); }

    using KelControlWidget::site;

private:
    WidgetSet widgets() const override { return site().control().widgets(); }
    void controlEvent(const EventRow& event, std::span<Variant> arguments) override {
        Observer_.controlEvent(*this, event, arguments);
    }
    void propertyReported(std::u16string_view bagName) override { Observer_.propertyReported(*this, bagName); }

    ControlObserver& Observer_;
    Placement Placement_;
};

}  // namespace kel::qt
