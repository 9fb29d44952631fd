#pragma once

#include <memory>
#include <vector>

#include "forms/Onlooker.h"
#include "host/focus/FocusOrder.h"
#include "platform/headless/Input.h"
#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

/// A form's window in memory; whether it is seen is up to the onlooker. A move of its focus has arrived as soon as it
/// is asked for.
class HeadlessWindow final : public FormWindow {
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
    void doubleClick(PlacedControl& control, std::int32_t position) override;
    void rightClick(PlacedControl& control) override;
    void spin(PlacedControl& control, bool up) override;
    void pick(PlacedControl& control, std::int32_t item) override;
    void setClipboard(std::u16string_view text) override { Input_.Clipboard.assign(text); }
    PlacedControl* focused() const override { return focusedHere(); }
    std::string picture() override { return {}; }

    // ---- Further hands, which scripts do not have

    /// Turns the wheel over the field; notches away from the user count up.
    void turnWheel(PlacedControl& control, std::int32_t notches);

    /// Drags text from elsewhere into the field, where it falls at `position` (past the end: the end).
    void drop(PlacedControl& control, std::int32_t position, std::u16string_view text);

    // ---- What its controls ask of it

    ControlHost hostFor(Container& container, WidgetHost& widgets) const {
        return {container, widgets, System_, Settings_, Region_};
    }
    /// Shows the window as it stands.
    void paint() const { Onlooker_.see(Scene_); }
    void moveFocusTo(FieldWidget& target);
    /// A widget or a control was disabled or hidden: the focus goes on from what can no longer have it.
    void recheckFocus();
    /// The control is about to go, without a word to anybody.
    void forget(const WidgetHost& control) { Focus_.forget(control); }
    const std::u16string& clipboard() const { return Input_.Clipboard; }

private:
    PlacedHeadlessControl* focusedHere() const;
    void moveFocusTo(const TabStop& stop, bool byTab);
    void moveFocusByTab(bool back);

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

    System& System_;
    SharedSettings& Settings_;
    const RegionalSettings& Region_;
    Input& Input_;
    Onlooker& Onlooker_;
    Scene Scene_;
    TabOrder Order_;
    FocusOrder Focus_;
    std::vector<std::unique_ptr<PlacedPanel>> Panels_;
    std::vector<std::unique_ptr<PlacedHeadlessControl>> Controls_;  ///< last: they lean on all of the above
};

}  // namespace kel::headless
