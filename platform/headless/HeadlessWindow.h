#pragma once

#include <memory>
#include <vector>

#include "forms/Onlooker.h"
#include "platform/headless/MemoryFocus.h"
#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

/// A form's window in memory; whether it is seen is up to the onlooker.
class HeadlessWindow final : public FormWindow, private Painter {
public:
    HeadlessWindow(const WindowSpec& description, System& system, SharedSettings& settings,
                   const RegionalSettings& region, Input& input, Onlooker& onlooker);
    ~HeadlessWindow() override;

    PlacedControl& place(const ClassModel& model, const Placement& placement, ControlObserver& observer) override;
    PlacedPanel* placeForeign(const ForeignBlock& block) override;
    void show() override;

    void press(const KeyStroke& stroke) override;
    void focus(PlacedControl& control) override;
    void click(PlacedControl& control, std::int32_t position) override;
    void rightClick(PlacedControl& control) override;
    void spin(PlacedControl& control, bool up) override;
    void pick(PlacedControl& control, std::int32_t item) override;
    void setClipboard(std::u16string_view text) override { Input_.Clipboard.assign(text); }
    PlacedControl* focused() const override;
    bool savePicture(const std::string& /*utf8Path*/) override { return false; }

    // ---- Further hands, which scripts do not have

    /// Turns the wheel over the field; notches away from the user count up.
    void turnWheel(PlacedControl& control, std::int32_t notches);

    /// Drags text from elsewhere into the field, where it falls at `position` (past the end: the end).
    void drop(PlacedControl& control, std::int32_t position, std::u16string_view text);

private:
    void paint() override { Onlooker_.see(Scene_); }

    /// Runs what a person does here, on the window that then has the keyboard.
    template <class Action>
    void byHand(Action action) {
        Input& input = Input_;
        input.activate(*this);
        input.run(action);
        // A handler may have closed the window.
        if (input.isActive(*this)) paint();
    }

    template <class Action>
    void byMouse(Action action) {
        byHand([&] {
            if (Focus_.holder() != nullptr) Focus_.holder()->pressedAnywhere();
            action();
        });
    }

    /// Does something to the field of a control that has taken the focus first.
    template <class Action>
    void byMouseInField(PlacedControl& control, Action action) {
        byMouse([&] {
            focus(control);
            if (FieldWidget* const target = placedHere(control).focusTarget()) action(*target);
        });
    }

    static PlacedHeadlessControl& placedHere(PlacedControl& control) {
        return static_cast<PlacedHeadlessControl&>(control);
    }

    Input& Input_;
    Onlooker& Onlooker_;
    Scene Scene_;
    TabOrder Order_;
    MemoryFocus Focus_;
    WindowServices Services_;
    std::vector<std::unique_ptr<PlacedPanel>> Panels_;
    std::vector<std::unique_ptr<PlacedHeadlessControl>> Controls_;  ///< last: they lean on all of the above
};

}  // namespace kel::headless
