#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "forms/Home.h"
#include "host/focus/TabOrder.h"
#include "platform/win32/base/TwipGrid.h"
#include "platform/win32/control/ControlWindow.h"

namespace kel::win32 {

class Win32FormWindow;

/// A control with everything it stands on: its place on the form, its container, its window.
class PlacedWin32Control final : public PlacedControl, public TabStop, private Container, private ControlWindowOwner {
public:
    struct ControlServices {
        System& system;
        SharedSettings& settings;
        const RegionalSettings& region;
        std::shared_ptr<Clipboard> clipboard;
        HWND parent;
        Win32FormWindow& form;
    };

    /// `order` counts the controls placed before.
    PlacedWin32Control(const ClassModel& model, const Placement& placement, std::size_t order,
                       ControlObserver& observer, const ControlServices& surroundings);
    ~PlacedWin32Control() override;

    Control& control() override { return *Control_; }
    const std::u16string& name() const override { return Name_; }
    Rect bounds() const override { return Bounds_; }
    void setBounds(const Rect& bounds) override;
    std::u16string toolTipText() const override { return ToolTipText_; }
    void setToolTipText(std::u16string_view text) override { ToolTipText_.assign(text); }

    ControlWindow& window() { return Window_; }
    /// The form is on a screen of another resolution.
    void setGrid(const TwipGrid& grid);

    /// The window of the field, where it can take the focus; nullptr where not.
    HWND focusWindow() const;

private:
    WidgetSet widgets() const override { return Control_->widgets(); }

    bool hasSize() const override { return Sized_; }
    Size size() const override { return {Bounds_.width, Bounds_.height}; }
    void setSize(Size size) override;
    bool enabled() const override { return Window_.enabled(); }
    void setEnabled(bool enabled) override { Window_.setEnabled(enabled); }
    std::int32_t windowHandle() override { return Window_.handleNumber(); }
    std::u16string displayName() const override { return Name_; }
    void propertyChanged(const MemberRow& property) override { Observer_.propertyReported(*this, property.name); }
    void raiseEvent(const EventRow& event, std::span<Variant> arguments) override {
        Observer_.controlEvent(*this, event, arguments);
    }

    /// The form keeps its controls while it has a window.
    void holdOpen() override {}
    void letGo() override {}
    void focusEntered() override;
    void focusLeft() override;
    void passFocusOn() override;
    void viewChanged() override {}
    /// The form sees to all of its controls.
    void resolutionChanged() override {}
    void mnemonicChanged() override {}
    Control* accessibleControl() override { return Control_.get(); }
    ole::Module& readersModule() override;

    void showPlace();

    ControlObserver& Observer_;
    Win32FormWindow& Form_;
    TwipGrid Grid_;
    std::u16string Name_;
    std::u16string ToolTipText_;
    Rect Bounds_;
    bool Sized_ = false;
    ControlWindow Window_;
    std::unique_ptr<Control> Control_;  ///< last, so that it goes before all it stands on
};

}  // namespace kel::win32
