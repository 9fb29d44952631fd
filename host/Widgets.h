#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/Geometry.h"
#include "host/Keys.h"
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

    virtual Color foreColor() const = 0;
    virtual void setForeColor(Color color) = 0;

    /// `size` in points. The bold style is kept.
    virtual void setFont(std::u16string_view name, double size) = 0;
    virtual bool fontBold() const = 0;
    virtual void setFontBold(bool bold) = 0;

    /// Repaints at the next opportunity.
    virtual void refresh() = 0;
};

/// Changes the width alone.
inline void setWidth(Widget& widget, std::int32_t width) {
    Rect bounds = widget.bounds();
    bounds.width = width;
    widget.move(bounds);
}

class Label : public Widget {
public:
    virtual const std::u16string& caption() const = 0;
    virtual void setCaption(std::u16string_view caption) = 0;
};

/// A widget that takes the focus and is coloured by the field's state.
class FieldWidget : public Widget {
public:
    virtual bool visible() const = 0;
    virtual void setVisible(bool visible) = 0;

    virtual Color backColor() const = 0;
    virtual void setBackColor(Color color) = 0;

    virtual std::u16string toolTip() const = 0;
    virtual void setToolTip(std::u16string_view text) = 0;

    virtual void setFocus() = 0;
};

/// A single-line or multi-line edit box. Positions and lengths count UTF-16 units; a line break of a
/// multi-line box is a carriage return and a line feed and counts two. A new box is enabled, visible,
/// unlocked, empty, with `colors::SystemWindow` behind `colors::SystemWindowText`.
class TextBox : public FieldWidget {
public:
    virtual std::u16string text() const = 0;

    /// Puts a text, of any length, and the caret to 0. Notifies a change when it differs from the old one.
    virtual void setText(std::u16string_view text) = 0;

    virtual bool textEquals(std::u16string_view other) const = 0;
    virtual std::int32_t textLength() const = 0;

    virtual std::int32_t selStart() const = 0;
    /// Drops the selection. A position past the end is the end.
    virtual void setSelStart(std::int32_t position) = 0;
    virtual std::int32_t selLength() const = 0;
    /// Selects from the selection's start; cut at the end of the text.
    virtual void setSelLength(std::int32_t length) = 0;
    virtual std::u16string selText() const = 0;
    /// Replaces the selection as typing would, caret behind it, undo kept; the maximum length does not bind.
    virtual void setSelText(std::u16string_view text) = 0;

    virtual bool locked() const = 0;
    virtual void setLocked(bool locked) = 0;

    /// Binds typing and pasting, not `setText`; 0 is no limit.
    virtual std::int32_t maxLength() const = 0;
    virtual void setMaxLength(std::int32_t units) = 0;

    /// Shown in place of every character; 0 shows the text.
    virtual char16_t passwordChar() const = 0;
    virtual void setPasswordChar(char16_t character) = 0;
};

/// What a text box tells its control, as it happens. A handler may do anything to the widget, also move the
/// focus away; it may run host code.
class TextBoxListener {
public:
    /// The text differs from before, by the user or by code.
    virtual void Text1_Change() = 0;
    /// The left mouse button was pressed and released in the box.
    virtual void Text1_Click() = 0;
    /// A key goes down; `KeyCode` set to 0 swallows it.
    virtual void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) = 0;
    /// A character is about to be inserted, or a control character to act; 0 swallows it.
    virtual void Text1_KeyPress(char32_t& KeyAscii) = 0;
    virtual void Text1_MouseDown(MouseButton Button) = 0;
    virtual void Text1_GotFocus() = 0;
    virtual void Text1_LostFocus() = 0;

protected:
    ~TextBoxListener() = default;
};

/// Makes the child widgets of one control. A listener outlives its widget.
class WidgetFactory {
public:
    virtual std::unique_ptr<Label> makeLabel() = 0;
    virtual std::unique_ptr<TextBox> makeTextBox(TextBoxListener& listener, bool multiLine) = 0;

protected:
    ~WidgetFactory() = default;
};

/// The widgets of a control as they stand; null where it has none.
struct WidgetSet {
    Label* label = nullptr;
    FieldWidget* field = nullptr;  ///< the one that is shown
    TextBox* textBox = nullptr;    ///< the same, where it is a text box
};

}  // namespace kel
