#pragma once

#include <string>
#include <string_view>

#include "host/Widgets.h"
#include "platform/headless/FocusKeeper.h"

namespace kel::headless {

inline constexpr double NewFontSize = 8;  ///< points

/// What every widget keeps. `Base` is one of the widget interfaces.
template <class Base>
class HeadlessWidget : public Base {
public:
    Rect bounds() const override { return Bounds_; }
    void move(const Rect& bounds) override { Bounds_ = bounds; }

    bool enabled() const override { return Enabled_; }
    void setEnabled(bool enabled) override { Enabled_ = enabled; }

    Color foreColor() const override { return ForeColor_; }
    void setForeColor(Color color) override { ForeColor_ = color; }

    /// Of a font only the size counts here: it says how many lines a page has.
    void setFont(std::u16string_view /*name*/, double size) override { FontSize_ = size; }
    bool fontBold() const override { return FontBold_; }
    void setFontBold(bool bold) override { FontBold_ = bold; }

    /// There is no screen to paint on.
    void refresh() override {}

protected:
    explicit HeadlessWidget(Color foreColor) : ForeColor_(foreColor) {}

    double fontSize() const { return FontSize_; }

private:
    Rect Bounds_;
    double FontSize_ = NewFontSize;
    Color ForeColor_;
    bool Enabled_ = true;
    bool FontBold_ = false;
};

class HeadlessLabel final : public HeadlessWidget<Label> {
public:
    HeadlessLabel() : HeadlessWidget(colors::SystemButtonText) {}

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override { Caption_.assign(caption); }

private:
    std::u16string Caption_;
};

/// What every widget keeps that can have the focus.
template <class Base>
class HeadlessField : public HeadlessWidget<Base>, public FocusTarget {
public:
    void setEnabled(bool enabled) override {
        HeadlessWidget<Base>::setEnabled(enabled);
        seat().focus.recheck();
    }

    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override {
        Visible_ = visible;
        seat().focus.recheck();
    }

    Color backColor() const override { return BackColor_; }
    void setBackColor(Color color) override { BackColor_ = color; }

    std::u16string toolTip() const override { return ToolTip_; }
    void setToolTip(std::u16string_view text) override { ToolTip_.assign(text); }

    void setFocus() override { seat().focus.moveTo(*this); }

    bool takesInput() const override { return seat().takesInput() && this->enabled() && Visible_; }

protected:
    explicit HeadlessField(Seat& seat) : HeadlessWidget<Base>(colors::SystemWindowText), FocusTarget(seat) {}

private:
    std::u16string ToolTip_;
    Color BackColor_ = colors::SystemWindow;
    bool Visible_ = true;
};

}  // namespace kel::headless
