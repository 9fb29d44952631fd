#pragma once

#include "platform/qt/QtChild.h"
#include "platform/qt/TextBridge.h"
#include "platform/qt/WidgetLook.h"

namespace kel::qt {

/// What all child widgets on Qt have in common that show text in Qt's own way, and a tooltip.
template <class Interface, class Child>
class QtTextual : public QtChild<Interface, Child> {
public:
    using ChildWidget::widget;

    void setFont(std::u16string_view name, double size) override {
        setWidgetFont(widget(), fontLike(widget().font(), name, size));
    }
    bool fontBold() const override { return widget().font().bold(); }
    void setFontBold(bool bold) override {
        QFont font = widget().font();
        font.setBold(bold);
        setWidgetFont(widget(), font);
    }

    void refresh() override { widget().update(); }

    std::u16string toolTip() const override { return std::u16string(viewOf(widget().toolTip())); }
    void setToolTip(std::u16string_view text) override { setWidgetToolTip(widget(), text); }

protected:
    QtTextual(ControlSite& place, QWidget& shown) : QtChild<Interface, Child>(place, shown) {}
};

}  // namespace kel::qt
