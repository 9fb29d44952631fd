#pragma once

#include <windows.h>

#include <optional>

#include "host/Keys.h"
#include "host/widgets/Widget.h"

namespace kel::win32 {

class Canvas;
class ControlWindowOwner;
class TwipGrid;
class Win32Label;
class WindowedField;

/// What a control's window knows of the widgets in it, but for the caption.
class WindowedView {
public:
    /// nullptr while there is none.
    virtual HWND window() const = 0;
    /// The one around it, where the system's widget is made of several.
    virtual HWND wholeWindow() const { return window(); }
    bool has(HWND window) const { return window != nullptr && (window == this->window() || window == wholeWindow()); }
    /// Makes the window in that of the control, as the widget stands.
    virtual void makeWindow() = 0;

    virtual bool shown() const = 0;

    /// nullptr where it cannot have the focus.
    virtual WindowedField* asField() { return nullptr; }

    /// The frame is enabled from now on, or no longer.
    virtual void frameEnabledChanged() {}
    /// The grid of the frame has another resolution.
    virtual void rescale() = 0;

    /// Its window says something to its parent; `details` are those of WM_NOTIFY, 0 without it. Returns the
    /// answer.
    virtual LRESULT notified(UINT notification, LPARAM details) = 0;

    /// Paints the widget where it stands in the control.
    virtual void draw(const Canvas& canvas) const = 0;

protected:
    ~WindowedView() = default;
};

/// What it knows of those that can have the focus.
class WindowedField : public WindowedView {
public:
    FieldWidget& widget() const { return Widget_; }
    bool shown() const final { return Widget_.visible(); }
    WindowedField* asField() final { return this; }

    /// A key that its host would otherwise take for itself.
    virtual bool wantsKey(const KeyStroke& stroke) const = 0;

    /// Colours of what the system's window is about to paint.
    virtual HBRUSH colors(HDC context) const = 0;

    /// Of the first line of text on the canvas.
    virtual int baseline(const Canvas& canvas) const = 0;

protected:
    explicit WindowedField(FieldWidget& widget) : Widget_(widget) {}
    ~WindowedField() = default;

private:
    FieldWidget& Widget_;
};

/// What shows the widget; nullptr without one, and where it is of another kind.
template <class Seen>
Seen* viewOf(const Widget* widget) {
    return widget != nullptr ? dynamic_cast<Seen*>(widget->view()) : nullptr;
}

/// What the widgets know of the window they stand in. Outlives them.
class ControlFrame {
public:
    /// nullptr while there is none.
    virtual HWND window() const = 0;
    virtual ControlWindowOwner& owner() = 0;
    virtual const TwipGrid& grid() const = 0;
    virtual bool enabled() const = 0;

    virtual void add(WindowedView& widget) = 0;
    virtual void remove(WindowedView& widget) = 0;

    /// The window of the field has got the focus; the one that had it has lost it to `next`.
    virtual void arrived(WindowedField& field) = 0;
    virtual void departed(HWND next) = 0;
    /// The focus goes on when it is in `window`, and a mouse button held there counts as released.
    virtual void takeInputFrom(HWND window) = 0;

    virtual void setToolTip(HWND field, const wchar_t* text) = 0;

    /// nullptr when it goes.
    virtual void setLabel(Win32Label* label) = 0;
    /// The caption is to be placed and painted again: it goes by the field that shows.
    virtual void captionChanged() = 0;
    virtual void mnemonicChanged() = 0;
    /// Anything looks different.
    virtual void viewChanged() = 0;

    /// A window of the widgets, or the control's own, is sent WM_GETOBJECT. None where the system is to answer.
    virtual std::optional<LRESULT> answerReader(HWND window, UINT message, WPARAM wide, LPARAM data) = 0;

protected:
    ~ControlFrame() = default;
};

}  // namespace kel::win32
