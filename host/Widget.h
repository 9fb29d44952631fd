#pragma once

#include <string>
#include <string_view>

#include "host/Geometry.h"
#include "values/Color.h"

/// The child widgets that a control is made of, as narrow as the controls need them. A platform implements
/// them; the control owns each one and destroys it before its container goes.
namespace kel {

class Widget {
public:
    Widget() = default;
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;
    virtual ~Widget() = default;

    /// Place inside the control, kept to the twip whatever the screen's resolution.
    virtual Rect bounds() const = 0;
    virtual void move(const Rect& bounds) = 0;

    virtual bool enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
};

/// Changes the width alone.
inline void setWidth(Widget& widget, std::int32_t width) {
    Rect bounds = widget.bounds();
    bounds.width = width;
    widget.move(bounds);
}

/// A widget that shows text.
class TextualWidget : public Widget {
public:
    virtual Color foreColor() const = 0;
    virtual void setForeColor(Color color) = 0;

    /// `size` in points. The bold style is kept.
    virtual void setFont(std::u16string_view name, double size) = 0;
    virtual bool fontBold() const = 0;
    virtual void setFontBold(bool bold) = 0;

    /// Repaints at the next opportunity.
    virtual void refresh() = 0;
};

class Label : public TextualWidget {
public:
    virtual const std::u16string& caption() const = 0;
    virtual void setCaption(std::u16string_view caption) = 0;
};

/// A widget that takes the focus and is coloured by the field's state.
class FieldWidget : public TextualWidget {
public:
    virtual bool visible() const = 0;
    virtual void setVisible(bool visible) = 0;

    virtual Color backColor() const = 0;
    virtual void setBackColor(Color color) = 0;

    virtual std::u16string toolTip() const = 0;
    virtual void setToolTip(std::u16string_view text) = 0;

    virtual void setFocus() = 0;
};

}  // namespace kel
