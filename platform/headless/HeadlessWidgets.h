#pragma once

#include <algorithm>
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

private:
    Rect Bounds_;
    bool Enabled_ = true;
};

/// What every widget keeps that shows text.
template <class Base>
class HeadlessTextualWidget : public HeadlessWidget<Base> {
public:
    Color foreColor() const override { return ForeColor_; }
    void setForeColor(Color color) override { ForeColor_ = color; }

    /// Of a font only the size counts here: it says how much room text takes.
    void setFont(std::u16string_view /*name*/, double size) override { FontSize_ = size; }
    bool fontBold() const override { return FontBold_; }
    void setFontBold(bool bold) override { FontBold_ = bold; }

    /// There is no screen to paint on.
    void refresh() override {}

protected:
    explicit HeadlessTextualWidget(Color foreColor) : ForeColor_(foreColor) {}

    /// Twips; 20 make a point, and there is a gap between lines.
    double lineHeight() const { return std::max(FontSize_, 1.0) * 24; }
    /// Twips; all characters are alike.
    double characterWidth() const { return std::max(FontSize_, 1.0) * 10; }

private:
    double FontSize_ = NewFontSize;
    Color ForeColor_;
    bool FontBold_ = false;
};

class HeadlessLabel final : public HeadlessTextualWidget<Label> {
public:
    HeadlessLabel() : HeadlessTextualWidget(colors::SystemButtonText) {}

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override { Caption_.assign(caption); }

private:
    std::u16string Caption_;
};

/// What every widget keeps that can have the focus.
template <class Base>
class HeadlessField : public HeadlessTextualWidget<Base>, public FocusTarget {
public:
    void setEnabled(bool enabled) override {
        HeadlessTextualWidget<Base>::setEnabled(enabled);
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
    explicit HeadlessField(Seat& seat) : HeadlessTextualWidget<Base>(colors::SystemWindowText), FocusTarget(seat) {}

private:
    std::u16string ToolTip_;
    Color BackColor_ = colors::SystemWindow;
    bool Visible_ = true;
};

/// Two arrow buttons that take single clicks; holding one down means nothing where no time passes.
class HeadlessUpDown final : public HeadlessWidget<UpDown> {
public:
    HeadlessUpDown(const Seat& seat, UpDownListener& listener) : Seat_(seat), Listener_(listener) {}

    bool visible() const override { return Visible_; }
    void setVisible(bool visible) override { Visible_ = visible; }

    std::int32_t value() const override { return Value_; }
    void setValue(std::int32_t value) override { Value_ = value; }

    /// The left mouse button on the upper or the lower half.
    void click(bool up) {
        if (!Seat_.takesInput() || !enabled() || !Visible_) return;
        Value_ = up ? Up : Down;
        Listener_.UpDown1_Change();
    }

private:
    const Seat& Seat_;
    UpDownListener& Listener_;
    std::int32_t Value_ = Rest;
    bool Visible_ = false;
};

}  // namespace kel::headless
