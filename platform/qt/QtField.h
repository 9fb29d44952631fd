#pragma once

#include <QWidget>

#include "platform/qt/ChildField.h"
#include "platform/qt/ControlSite.h"
#include "platform/qt/FocusWay.h"
#include "platform/qt/TextBridge.h"
#include "platform/qt/WidgetLook.h"

namespace kel::qt {

/// What the field widgets have in common that Qt's own widgets are. `Interface` is one of the field widgets of
/// host/Widgets.h.
template <class Interface>
class QtField : public Interface, public ChildField {
public:
    using ChildWidget::site;
    using ChildWidget::widget;

    void move(const Rect& bounds) override {
        if (bounds == this->bounds()) return;
        Interface::move(bounds);
        placeAgain();
    }

    void setEnabled(bool enabled) override {
        Interface::setEnabled(enabled);
        widget().setEnabled(this->enabled());
        site().fieldEnabled(*this, this->enabled());
    }

    void setForeColor(Color color) override {
        if (color == this->foreColor()) return;
        Interface::setForeColor(color);
        showColors();
    }
    void setBackColor(Color color) override {
        if (color == this->backColor()) return;
        Interface::setBackColor(color);
        showColors();
    }

    void setFont(std::u16string_view name, double size) override {
        Interface::setFont(name, size);
        showFont();
    }
    void setFontBold(bool bold) override {
        Interface::setFontBold(bold);
        showFont();
    }

    void setToolTip(std::u16string_view text) override {
        Interface::setToolTip(text);
        setWidgetToolTip(widget(), text);
    }

    void refresh() override { widget().update(); }

    void setFocus() override { focusWidget(widget()); }

    void colorAgain() override {
        if (colors() != FieldColors{}) showColors();
    }

protected:
    QtField(ControlSite& place, QWidget& widget) : ChildField(place, widget, *this) {}

    /// They are others, or the desktop's are.
    virtual void showColors() { colorWidget(widget(), colors()); }

    /// Enabled and shown, its control as well.
    bool takesInput() const override { return this->visible() && widget().isEnabled(); }

    /// For overrides of `setVisible`, which Qt calls too: `show` does the showing and hiding.
    template <class Show>
    void changeVisible(bool visible, Show show) {
        Interface::setVisible(visible);
        show();
        if (visible) site().fieldShown(*this);
    }

private:
    void barred() override { giveUpFocus(); }
    FieldColors colors() const { return {this->backColor(), this->foreColor()}; }
    void showFont() { setWidgetFont(widget(), fontOf(widget().font(), Interface::font())); }
};

}  // namespace kel::qt
