#include "platform/headless/HeadlessWindow.h"

#include "platform/headless/HeadlessComboBox.h"

namespace kel::headless {

namespace {

/// The Tab key's way from one control through all others and around.
class TabWay {
public:
    TabWay(const PlacedHeadlessControl* from, bool back) : From_(from), Back_(back) {}

    bool reachesSooner(const PlacedHeadlessControl& one, const PlacedHeadlessControl& other) const {
        if (wraps(one) != wraps(other)) return wraps(other);
        return precedes(one, other);
    }

private:
    bool precedes(const PlacedHeadlessControl& one, const PlacedHeadlessControl& other) const {
        return Back_ ? other.tabPlace() < one.tabPlace() : one.tabPlace() < other.tabPlace();
    }
    bool wraps(const PlacedHeadlessControl& control) const { return From_ != nullptr && !precedes(*From_, control); }

    const PlacedHeadlessControl* From_;
    bool Back_;
};

}  // namespace

HeadlessWindow::HeadlessWindow(System& system, SharedSettings& settings, const RegionalSettings& region, Input& input)
    : Input_(input), Focus_(input, *this), Services_{system, settings, region, input, Focus_} {}

HeadlessWindow::~HeadlessWindow() { Input_.forget(*this); }

PlacedControl& HeadlessWindow::place(const ClassModel& model, const Placement& placement, ControlObserver& observer) {
    Controls_.push_back(
        std::make_unique<PlacedHeadlessControl>(model, placement, Controls_.size(), observer, Services_));
    PlacedHeadlessControl& placed = *Controls_.back();
    placed.control().Initialize();
    return placed;
}

PlacedPanel* HeadlessWindow::placeForeign(const ForeignBlock& block) {
    if (block.kind != ForeignBlock::Kind::Panel) return nullptr;
    return Panels_.emplace_back(std::make_unique<PlacedPanel>()).get();
}

void HeadlessWindow::show() {
    byHand([this] {
        // By index: a host may place further controls meanwhile.
        for (std::size_t i = 0; i < Controls_.size(); ++i) Controls_[i]->control().Show();
    });
}

// ---- Hands

void HeadlessWindow::press(const KeyStroke& stroke) {
    byHand([this, &stroke] {
        if (stroke.code == keys::Tab && (stroke.modifiers & ControlKey) == 0) {
            // Alt and Tab go to another program.
            if ((stroke.modifiers & AltKey) == 0) moveByTab((stroke.modifiers & ShiftKey) != 0);
        } else if (Focus_.holder() != nullptr) {
            Focus_.holder()->strike(stroke);
        }
    });
}

void HeadlessWindow::focus(PlacedControl& control) {
    byHand([&] {
        FocusTarget* const target = placedHere(control).focusTarget();
        if (target == nullptr) return;
        const Input::TabKey released(Input_, false);
        Focus_.moveTo(*target);
    });
}

void HeadlessWindow::click(PlacedControl& control, std::int32_t position) {
    byMouseInField(control, [position](FocusTarget& field) { field.click(position); });
}

void HeadlessWindow::rightClick(PlacedControl& control) {
    byMouseInField(control, [](FocusTarget& field) { field.rightClick(); });
}

void HeadlessWindow::spin(PlacedControl& control, bool up) {
    byMouse([&] {
        if (HeadlessUpDown* const spinner = placedHere(control).spinner()) spinner->click(up);
    });
}

void HeadlessWindow::pick(PlacedControl& control, std::int32_t item) {
    byMouseInField(control, [&](FocusTarget& field) {
        if (&field == Focus_.holder()) placedHere(control).comboBox()->pick(item);
    });
}

void HeadlessWindow::turnWheel(PlacedControl& control, std::int32_t notches) {
    Input_.run([&] {
        FocusTarget* const target = placedHere(control).focusTarget();
        if (target != nullptr && target == Focus_.holder()) target->turnWheel(notches);
    });
}

void HeadlessWindow::drop(PlacedControl& control, std::int32_t position, std::u16string_view text) {
    const TextEntry* const box = control.control().widgets().entry;
    if (box == nullptr || box->locked()) return;
    byMouseInField(control, [&](FocusTarget& field) { field.drop(position, text); });
}

PlacedControl* HeadlessWindow::focused() const {
    return Focus_.holder() != nullptr ? &Focus_.holder()->seat().owner : nullptr;
}

void HeadlessWindow::moveByTab(bool back) {
    closeList();
    FocusTarget* const target = nextByTab(back);
    if (target == nullptr) return;
    const Input::TabKey held(Input_, true);
    Focus_.moveTo(*target);
}

/// Also where the focus has nowhere to go and stays.
void HeadlessWindow::closeList() {
    HeadlessComboBox* const box = Focus_.holder() != nullptr ? Focus_.holder()->seat().owner.comboBox() : nullptr;
    if (box != nullptr) box->showDropDown(false);
}

FocusTarget* HeadlessWindow::nextByTab(bool back) const {
    const PlacedHeadlessControl* const from = Focus_.holder() != nullptr ? &Focus_.holder()->seat().owner : nullptr;
    const TabWay way(from, back);
    const PlacedHeadlessControl* next = nullptr;
    FocusTarget* target = nullptr;
    // Along the key's own way most others are found to come later, and need not be asked for their widgets.
    for (std::size_t i = 0; i < Controls_.size(); ++i) {
        const auto& control = Controls_[back ? Controls_.size() - 1 - i : i];
        if (!control->tabStop() || (next != nullptr && !way.reachesSooner(*control, *next))) continue;
        if (FocusTarget* const its = control->focusTarget()) {
            next = control.get();
            target = its;
        }
    }
    return target;
}

}  // namespace kel::headless
