#pragma once

#include <memory>
#include <vector>

#include "forms/Home.h"
#include "platform/headless/FocusKeeper.h"
#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

/// A form's window that nobody sees.
class HeadlessWindow final : public FormWindow {
public:
    HeadlessWindow(System& system, SharedSettings& settings, Input& input);
    ~HeadlessWindow() override;

    PlacedControl& place(const ClassModel& model, const Placement& placement, ControlObserver& observer) override;
    PlacedPanel* placeForeign(const ForeignBlock& block) override;
    void show() override;

    void press(const KeyStroke& stroke) override;
    void focus(PlacedControl& control) override;
    void click(PlacedControl& control, std::int32_t position) override;
    void rightClick(PlacedControl& control) override;
    void setClipboard(std::u16string_view text) override { Input_.Clipboard.assign(text); }
    PlacedControl* focused() const override;
    bool savePicture(const std::string& /*utf8Path*/) override { return false; }

private:
    void moveByTab(bool back);
    FocusTarget* nextByTab(bool back) const;

    /// Runs what a person does here, on the window that then has the keyboard.
    template <class Action>
    void byHand(Action action) {
        Input_.activate(*this);
        Input_.run(action);
    }

    Input& Input_;
    FocusKeeper Focus_;
    WindowServices Services_;
    std::vector<std::unique_ptr<PlacedPanel>> Panels_;
    std::vector<std::unique_ptr<PlacedHeadlessControl>> Controls_;  ///< last: they lean on all of the above
};

}  // namespace kel::headless
