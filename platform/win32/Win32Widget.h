#pragma once

#include "host/Widgets.h"
#include "platform/win32/ChildField.h"
#include "platform/win32/Look.h"

namespace kel::win32 {

/// What every widget keeps, whether it has a window or not. `Base` is one of the widget interfaces.
template <class Base>
class Win32Widget : public Base {
public:
    void move(const Rect& bounds) override {
        if (bounds == this->bounds()) return;
        Base::move(bounds);
        placeChanged();
    }

    void setEnabled(bool enabled) override {
        if (enabled == this->enabled()) return;
        Base::setEnabled(enabled);
        enabledChanged();
    }

protected:
    explicit Win32Widget(ControlFrame& frame) : Frame_(frame) {}

    ControlFrame& frame() const { return Frame_; }
    RECT pixels() const { return Frame_.grid().pixels(this->bounds()); }

    /// Puts the widget's window, where there is one, where the widget stands.
    void placeWindow(HWND window) const {
        const RECT place = pixels();
        if (window != nullptr)
            SetWindowPos(window, nullptr, place.left, place.top, widthOf(place), heightOf(place),
                         SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }

private:
    virtual void placeChanged() = 0;
    virtual void enabledChanged() = 0;

    ControlFrame& Frame_;
};

/// What those keep that show text.
template <class Base>
class Win32TextualWidget : public Win32Widget<Base> {
public:
    void setForeColor(Color color) override {
        if (color == this->foreColor()) return;
        Base::setForeColor(color);
        refresh();
    }

    void setFont(std::u16string_view name, double size) override {
        Font_.choose(name, size, this->frame().grid());
        fontChanged();
    }
    void setFontBold(bool bold) override {
        Base::setFontBold(bold);
        Font_.setBold(bold);
        fontChanged();
    }

    void refresh() override = 0;

protected:
    using Win32Widget<Base>::Win32Widget;

    const Font& font() const { return Font_; }

    /// The grid of the frame has another resolution.
    void rescaleFont() {
        Font_.rescale(this->frame().grid());
        fontChanged();
    }

private:
    virtual void fontChanged() = 0;

    Font Font_;
};

}  // namespace kel::win32
