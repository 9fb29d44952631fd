#pragma once

#include <string>
#include <string_view>

#include "host/Widgets.h"
#include "platform/headless/FocusKeeper.h"

namespace kel::headless {

inline constexpr double NewFontSize = 8;  ///< points

class HeadlessLabel final : public Label {
public:
    HeadlessLabel() { setForeColor(colors::SystemButtonText); }

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override { Caption_.assign(caption); }

private:
    std::u16string Caption_;
};

/// What every widget keeps that can have the focus.
template <class Base>
class HeadlessField : public Base, public FocusTarget {
public:
    void setEnabled(bool enabled) override {
        Base::setEnabled(enabled);
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
    explicit HeadlessField(Seat& seat) : FocusTarget(seat) {}

private:
    std::u16string ToolTip_;
    Color BackColor_ = colors::SystemWindow;
    bool Visible_ = true;
};

/// Two arrow buttons that take single clicks; holding one down means nothing where no time passes.
class HeadlessUpDown final : public UpDown {
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
