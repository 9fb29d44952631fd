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
    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override {
        if (visible == Visible_) return;
        Visible_ = visible;
        if (!visible) this->frame().takeInputFrom(wholeWindow());
        if (wholeWindow() != nullptr) ShowWindow(wholeWindow(), Visible_ ? SW_SHOWNA : SW_HIDE);
        this->frame().fieldShown();
    }

    Color backColor() const override { return BackColor_; }
    void setBackColor(Color color) override {
        if (color == BackColor_) return;
        BackColor_ = color;
        this->refresh();
    }

    std::u16string toolTip() const override { return ToolTip_; }
    void setToolTip(std::u16string_view text) override {
        if (text == ToolTip_) return;
        ToolTip_.assign(text);
        showToolTip();
    }

    void setFocus() override {
        if (this->window() != nullptr && acceptsInput()) SetFocus(this->window());
    }

    // ---- ChildField

    bool shown() const override { return Visible_; }
    bool acceptsInput() const override { return this->enabled() && Visible_ && this->frame().acceptsInput(); }
    void frameEnabledChanged() override {}

    HBRUSH colors(HDC context) const override {
        const COLORREF back = colorOf(BackColor_);
        SetTextColor(context, looksEnabled() ? colorOf(this->foreColor()) : GetSysColor(COLOR_GRAYTEXT));
        SetBkColor(context, back);
        return brushFor(context, back);
    }

protected:
    Win32FieldWidget(ControlFrame& frame, Color foreColor, Color backColor)
        : Win32TextualWidget<Base>(frame, foreColor), BackColor_(backColor) {}

    /// The window that is all of the widget.
    virtual HWND wholeWindow() const { return this->window(); }

    /// Its text is not grey.
    virtual bool looksEnabled() const { return this->enabled() && this->frame().enabled(); }

    /// The window has just been made.
    void showState() {
        EnableWindow(wholeWindow(), this->enabled());
        showToolTip();
        if (Visible_) ShowWindow(wholeWindow(), SW_SHOWNA);
    }

    TEXTMETRICW textMetrics() const { return this->font().metrics(this->window()); }

private:
    void enabledChanged() override {
        if (!this->enabled()) this->frame().takeInputFrom(wholeWindow());
        if (wholeWindow() != nullptr) EnableWindow(wholeWindow(), this->enabled());
        this->refresh();
    }

    void showToolTip() {
        const std::wstring text = wide(ToolTip_);
        if (this->window() != nullptr) this->frame().setToolTip(this->window(), text.c_str());
        if (wholeWindow() != this->window()) this->frame().setToolTip(wholeWindow(), text.c_str());
    }

    std::u16string ToolTip_;
    Color BackColor_;
    bool Visible_ = true;
};

}  // namespace kel::win32
