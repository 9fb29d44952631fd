#pragma once

#include <string>

#include "platform/win32/EditInput.h"
#include "platform/win32/WideText.h"
#include "platform/win32/Win32Widget.h"

namespace kel::win32 {

/// What those fields keep whose text stands in an edit window. `Base` is one of the widget interfaces.
template <class Base>
class Win32EditedWidget : public Win32TextualWidget<Base>, public EditedField {
public:
    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override {
        if (visible == Visible_) return;
        Visible_ = visible;
        if (!visible) this->frame().takeInputFrom(wholeWindow());
        if (wholeWindow() != nullptr) ShowWindow(wholeWindow(), visible ? SW_SHOWNA : SW_HIDE);
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
        if (window() != nullptr && acceptsInput()) SetFocus(window());
    }

    // ---- EditedField

    HWND window() const override { return View_.window(); }
    bool shown() const override { return Visible_; }
    bool acceptsInput() const override { return this->enabled() && Visible_ && this->frame().acceptsInput(); }
    void frameEnabledChanged() override {}
    HFONT fontHandle() const override { return this->font().handle(); }

    HBRUSH colors(HDC context) const override {
        const bool grey = !this->enabled() || !this->frame().enabled();
        const COLORREF back = colorOf(BackColor_);
        SetTextColor(context, grey ? GetSysColor(COLOR_GRAYTEXT) : colorOf(this->foreColor()));
        SetBkColor(context, back);
        return brushFor(context, back);
    }

protected:
    Win32EditedWidget(ControlFrame& frame, bool multiLine)
        : Win32TextualWidget<Base>(frame, kel::colors::SystemWindowText), View_(multiLine) {}

    /// The window that is all of the widget.
    virtual HWND wholeWindow() const { return window(); }

    /// The window has just been made.
    void showState() {
        EnableWindow(wholeWindow(), this->enabled());
        showToolTip();
        if (Visible_) ShowWindow(wholeWindow(), SW_SHOWNA);
    }

    /// Ascent of the font, and height of its lines.
    TEXTMETRICW textMetrics() const {
        const WindowContext context(window());
        const Selected selected(context.get(), fontHandle());
        TEXTMETRICW metrics{};
        GetTextMetricsW(context.get(), &metrics);
        return metrics;
    }

    EditView View_;

private:
    void enabledChanged() override {
        if (!this->enabled()) this->frame().takeInputFrom(wholeWindow());
        if (wholeWindow() != nullptr) EnableWindow(wholeWindow(), this->enabled());
        this->refresh();
    }

    void showToolTip() {
        const std::wstring text = wide(ToolTip_);
        if (window() != nullptr) this->frame().setToolTip(window(), text.c_str());
        if (wholeWindow() != window()) this->frame().setToolTip(wholeWindow(), text.c_str());
    }

    std::u16string ToolTip_;
    Color BackColor_ = kel::colors::SystemWindow;
    bool Visible_ = true;
};

}  // namespace kel::win32
