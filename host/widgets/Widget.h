#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "host/Keys.h"
#include "host/View.h"
#include "values/Color.h"

/// The child widgets that a control is made of: they own what can be asked of them and know what a person's deeds do to
/// them. The control holds each one and destroys it before its container goes.
namespace kel {

class Widget {
public:
    Widget() = default;
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;
    virtual ~Widget() = default;

    /// Place inside the control, kept to the twip whatever the screen's resolution.
    Rect bounds() const { return Bounds_; }
    void move(const Rect& bounds);

    bool enabled() const { return Enabled_; }
    void setEnabled(bool enabled);

    /// nullptr where nobody looks.
    virtual View* view() const = 0;
    /// What has changed since the view last asked.
    Changes takeChanges() { return std::exchange(Changes_, {}); }

protected:
    void changed(Changes changes);

    /// Where it is another one, which the view then hears of.
    template <class Kept, class Value>
    void change(Kept& kept, const Value& value, Change what) {
        if (kept == value) return;
        kept = value;
        changed(what);
    }

private:
    /// It takes no input any longer, before that is seen.
    virtual void barred() {}

    Rect Bounds_;
    bool Enabled_ = true;
    Changes Changes_;
};

/// Changes the width alone.
inline void setWidth(Widget& widget, std::int32_t width) {
    Rect bounds = widget.bounds();
    bounds.width = width;
    widget.move(bounds);
}

/// A font as the controls choose it; what is not chosen is the home's own.
struct FontFace {
    std::u16string name;
    double size = 0;  ///< points
    bool bold = false;
    friend bool operator==(const FontFace&, const FontFace&) = default;
};

/// A widget that shows text.
class TextualWidget : public Widget {
public:
    Color foreColor() const { return ForeColor_; }
    void setForeColor(Color color) { change(ForeColor_, color, Change::Colors); }

    const FontFace& font() const { return Font_; }
    /// `size` in points. The bold style is kept.
    void setFont(std::u16string_view name, double size);
    bool fontBold() const { return Font_.bold; }
    void setFontBold(bool bold) { change(Font_.bold, bold, Change::Font); }

    /// Repaints at the next opportunity.
    void refresh();

    /// Of so many characters in one line, where no view can measure them: all are alike, and there is a gap between
    /// lines.
    Size extentUnseen(std::size_t characters) const;

protected:
    explicit TextualWidget(Color foreColor = colors::SystemWindowText) : ForeColor_(foreColor) {}

    void changeCaption(std::u16string& kept, std::u16string_view caption);

private:
    FontFace Font_;
    Color ForeColor_;
};

/// A widget that takes the focus and is coloured by the field's state.
class FieldWidget : public TextualWidget {
public:
    bool visible() const { return Visible_; }
    void setVisible(bool visible);

    Color backColor() const { return BackColor_; }
    void setBackColor(Color color) { change(BackColor_, color, Change::Colors); }

    const std::u16string& toolTip() const { return ToolTip_; }
    void setToolTip(std::u16string_view text) { change(ToolTip_, text, Change::ToolTip); }

    /// By code; one that takes no input stays without it.
    void setFocus() {
        if (takesInput()) Host_.moveFocusTo(*this);
    }

    /// Enabled and shown, its control as well.
    bool takesInput() const { return enabled() && visible() && Host_.takesInput(); }

    /// Where it stands.
    WidgetHost& host() const { return Host_; }

    /// It has been told that it has it, which may be away for a while, with another window in front.
    bool hasFocus() const { return HasFocus_; }

    // ---- What its home tells

    virtual void gotFocus() { HasFocus_ = true; }
    virtual void lostFocus() { HasFocus_ = false; }

    // ---- What a person does

    /// A key and what it types. False when it meant nothing to the widget or its control.
    virtual bool strike(const KeyStroke& stroke) = 0;
    /// The left mouse button, pressed and released; `position` in the text, if it has one, may be past either end.
    virtual void click(std::int32_t /*position*/) {}
    /// The same once more, soon after.
    virtual void clickAgain(std::int32_t position) { click(position); }
    virtual void rightClick() {}
    /// The key of the mnemonic that leads here.
    virtual void pressMnemonic() { setFocus(); }
    /// A mouse button goes down anywhere in the window, before what it is meant for hears of it.
    virtual void pressedAnywhere() {}
    /// The wheel, over the widget that has the focus.
    virtual void turnWheel(std::int32_t /*notches*/) {}
    /// Text dragged from elsewhere, when the widget has taken the focus; `position` as for a click.
    virtual void drop(std::int32_t /*position*/, std::u16string_view /*text*/) {}

protected:
    explicit FieldWidget(WidgetHost& host, Color backColor = colors::SystemWindow)
        : Host_(host), BackColor_(backColor) {}

private:
    void barred() override { Host_.focusBarred(*this); }

    WidgetHost& Host_;
    std::u16string ToolTip_;
    Color BackColor_ = colors::SystemWindow;
    bool Visible_ = true;
    bool HasFocus_ = false;
};

}  // namespace kel
