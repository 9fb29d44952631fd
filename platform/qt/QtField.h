#pragma once

#include "host/Widgets.h"
#include "platform/qt/ChildField.h"
#include "platform/qt/FocusWay.h"
#include "platform/qt/QtTextual.h"

namespace kel::qt {

/// What all field widgets on Qt have in common. `Interface` is one of the field widgets of host/Widgets.h.
template <class Interface>
class QtField : public QtTextual<Interface, ChildField> {
public:
    using ChildWidget::site;
    using ChildWidget::widget;

    Color foreColor() const override { return Colors_.fore; }
    void setForeColor(Color color) override { setColors({Colors_.back, color}); }
    Color backColor() const override { return Colors_.back; }
    void setBackColor(Color color) override { setColors({color, Colors_.fore}); }

    void setEnabled(bool enabled) override {
        // Whoever hears of the focus that goes finds the field as it will be.
        widget().setAttribute(Qt::WA_ForceDisabled, !enabled);
        if (!enabled) this->giveUpFocus();
        if (enabled != this->enabled()) return;  // a handler has put it again
        QtTextual<Interface, ChildField>::setEnabled(enabled);
        site().fieldEnabled(*this, enabled);
    }

    bool visible() const override { return Visible_; }

    void setFocus() override { focusWidget(widget()); }

    void colorAgain() override {
        if (Colors_ != FieldColors{}) showColors();
    }

protected:
    QtField(ControlSite& place, QWidget& shown) : QtTextual<Interface, ChildField>(place, shown) {}

    /// They are others, or the desktop's are.
    virtual void showColors() { colorWidget(widget(), Colors_); }

    /// Enabled and shown, its control as well.
    bool takesInput() const { return Visible_ && widget().isEnabled(); }

    /// For overrides of `setVisible`, which Qt calls too: `show` does the showing and hiding.
    template <class Show>
    void changeVisible(bool visible, Show show) {
        Visible_ = visible;
        if (!visible) this->giveUpFocus();
        show();
        if (visible) site().fieldShown(*this);
    }

private:
    void setColors(const FieldColors& colors) {
        if (colors == Colors_) return;
        Colors_ = colors;
        showColors();
    }

    FieldColors Colors_;
    bool Visible_ = true;
};

}  // namespace kel::qt
