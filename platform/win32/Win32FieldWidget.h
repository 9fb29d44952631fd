#pragma once

#include <string>

#include "platform/win32/WideText.h"
#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// What those keep that can have the focus. `Base` is one of the widget interfaces, `Child` is how the control's window
/// knows them.
template <class Base, class Child = ChildField>
class Win32FieldWidget : public Win32TextualWidget<Base>, public Child {
public:
    void setVisible(bool visible) override {
        if (visible == this->visible()) return;
        Base::setVisible(visible);
        if (wholeWindow() != nullptr) ShowWindow(wholeWindow(), this->visible() ? SW_SHOWNA : SW_HIDE);
        this->frame().fieldShown();
    }

    void setBackColor(Color color) override {
        if (color == this->backColor()) return;
        Base::setBackColor(color);
        this->refresh();
    }

    void setToolTip(std::u16string_view text) override {
        if (text == this->toolTip()) return;
        Base::setToolTip(text);
        showToolTip();
    }

    void setFocus() override {
        if (this->window() != nullptr && acceptsInput()) SetFocus(this->window());
    }

    // ---- ChildField

    bool shown() const override { return this->visible(); }
    bool acceptsInput() const override { return this->enabled() && this->visible() && this->frame().acceptsInput(); }
    void frameEnabledChanged() override {}

    HBRUSH colors(HDC context) const override {
        const COLORREF back = colorOf(this->backColor());
        SetTextColor(context, looksEnabled() ? colorOf(this->foreColor()) : GetSysColor(COLOR_GRAYTEXT));
        SetBkColor(context, back);
        return brushFor(context, back);
    }

protected:
    using Win32TextualWidget<Base>::Win32TextualWidget;

    /// The window that is all of the widget.
    virtual HWND wholeWindow() const { return this->window(); }

    /// Its text is not grey.
    virtual bool looksEnabled() const { return this->enabled() && this->frame().enabled(); }

    /// The window has just been made.
    void showState() {
        EnableWindow(wholeWindow(), this->enabled());
        showToolTip();
        if (this->visible()) ShowWindow(wholeWindow(), SW_SHOWNA);
    }

    TEXTMETRICW textMetrics() const { return this->font().metrics(this->window()); }

private:
    void barred() override { this->frame().takeInputFrom(wholeWindow()); }
    void enabledChanged() override {
        if (wholeWindow() != nullptr) EnableWindow(wholeWindow(), this->enabled());
        this->refresh();
    }

    void showToolTip() {
        const std::wstring text = wide(this->toolTip());
        if (this->window() != nullptr) this->frame().setToolTip(this->window(), text.c_str());
        if (wholeWindow() != this->window()) this->frame().setToolTip(wholeWindow(), text.c_str());
    }
};

}  // namespace kel::win32
