#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "forms/Home.h"
#include "host/focus/TabOrder.h"

namespace kel::headless {

class HeadlessWindow;

/// A control with everything it stands on: its place on the form, its container, the maker of its widgets.
class PlacedHeadlessControl final : public PlacedControl, public TabStop, public WidgetHost, private Container {
public:
    /// `order` counts the controls placed before. The window and the observer outlive it.
    PlacedHeadlessControl(HeadlessWindow& window, const ClassModel& model, const Placement& placement,
                          std::size_t order, ControlObserver& observer);
    ~PlacedHeadlessControl() override;

    Control& control() override { return *Control_; }
    const std::u16string& name() const override { return Name_; }
    Rect bounds() const override { return Bounds_; }
    void setBounds(const Rect& bounds) override;
    std::u16string toolTipText() const override { return ToolTipText_; }
    void setToolTipText(std::u16string_view text) override { ToolTipText_.assign(text); }

private:
    WidgetSet widgets() const override { return Control_->widgets(); }

    using WidgetHost::makeView;
    std::unique_ptr<PictureView> makeView(PictureBox& box) override;

    bool takesInput() const override { return Control_ && Enabled_ && Visible_; }
    void moveFocusTo(FieldWidget& field) override;
    void focusBarred(FieldWidget& field) override;
    void controlEntered() override { Control_->EnterFocus(); }
    void controlLeft() override { Control_->ExitFocus(); }
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;

    bool hasSize() const override { return Sized_; }
    Size size() const override { return {Bounds_.width, Bounds_.height}; }
    void setSize(Size size) override;
    bool enabled() const override { return Enabled_; }
    void setEnabled(bool enabled) override;
    std::int32_t windowHandle() override { return 0; }
    std::u16string displayName() const override { return Name_; }
    void propertyChanged(const MemberRow& property) override { Observer_.propertyReported(*this, property.name); }
    void raiseEvent(const EventRow& event, std::span<Variant> arguments) override {
        Observer_.controlEvent(*this, event, arguments);
    }

    HeadlessWindow& Window_;
    ControlObserver& Observer_;
    std::u16string Name_;
    std::u16string ToolTipText_;
    Rect Bounds_;
    bool Sized_ = false;
    bool Enabled_ = true;
    bool Visible_;
    std::unique_ptr<Control> Control_;  ///< last, so that it goes before all it stands on; none while it is being made
};

}  // namespace kel::headless
