#include "platform/headless/HeadlessWindow.h"

namespace kel::headless {

namespace {

/// What is placed in a hidden panel is as good as hidden itself.
class HeadlessPanel final : public PlacedPanel {
public:
    HeadlessPanel(const Rect& place, bool visible) : Place_(place), Visible_(visible) {}
    /// In the window.
    const Rect& place() const { return Place_; }
    bool visible() const { return Visible_; }

private:
    Rect Place_;
    bool Visible_;
};

bool isSeen(const Placement& placement) {
    const auto* const panel = static_cast<const HeadlessPanel*>(placement.parent);
    return placement.visible && (panel == nullptr || panel->visible());
}

Rect originOf(const Placement& placement) {
    const auto* const panel = static_cast<const HeadlessPanel*>(placement.parent);
    return panel != nullptr ? panel->place() : Rect{};
}

Rect inWindow(const Placement& placement) {
    const Rect origin = originOf(placement);
    const Rect& bounds = placement.bounds;
    return {origin.left + bounds.left, origin.top + bounds.top, bounds.width, bounds.height};
}

PlacedHeadlessControl& placedWith(const FieldWidget& field) {
    return static_cast<PlacedHeadlessControl&>(field.host());
}

}  // namespace

HeadlessWindow::HeadlessWindow(const WindowSpec& description, System& system, SharedSettings& settings,
                               const RegionalSettings& region, Input& input, Onlooker& onlooker)
    : System_(system),
      Settings_(settings),
      Region_(region),
      Input_(input),
      Onlooker_(onlooker),
      Scene_{.window = *this, .description = description} {}

HeadlessWindow::~HeadlessWindow() { Input_.forget(*this); }

PlacedControl& HeadlessWindow::place(const ClassModel& model, const Placement& placement, ControlObserver& observer) {
    Placement seen = placement;
    seen.visible = isSeen(placement);
    Controls_.push_back(std::make_unique<PlacedHeadlessControl>(*this, model, seen, Controls_.size(), observer));
    PlacedHeadlessControl& placed = *Controls_.back();
    Order_.add(placed);
    placed.control().Initialize();
    if (seen.visible) Scene_.controls.emplace_back(&placed, originOf(placement));
    return placed;
}

PlacedPanel* HeadlessWindow::placeForeign(const ForeignBlock& block) {
    const bool seen = isSeen(block.placement);
    if (seen) Scene_.blocks.emplace_back(block, originOf(block.placement));
    if (block.kind == ForeignBlock::Kind::Label) Order_.addLabel(block.caption, block.placement.tabIndex);
    if (block.kind != ForeignBlock::Kind::Panel) return nullptr;
    return Panels_.emplace_back(std::make_unique<HeadlessPanel>(inWindow(block.placement), seen)).get();
}

void HeadlessWindow::show() {
    byHand([this] {
        // By index: a host may place further controls meanwhile.
        for (std::size_t i = 0; i < Controls_.size(); ++i) Controls_[i]->control().Show();
    });
}

// ---- The focus

void HeadlessWindow::moveFocusTo(FieldWidget& target) {
    Input_.activate(*this);
    Focus_.arrived(target);
}

void HeadlessWindow::moveFocusTo(const TabStop& stop, bool byTab) {
    const TabKey::Scope tab(Input_.Tab, byTab);
    moveFocusTo(*stop.focusTarget());
}

void HeadlessWindow::moveFocusByTab(bool back) {
    if (const TabStop* const next = Order_.next(focusedHere(), back)) moveFocusTo(*next, true);
}

void HeadlessWindow::recheckFocus() {
    const FieldWidget* const barred = Focus_.target();
    if (barred == nullptr || barred->takesInput()) return;
    TabStop& stop = placedWith(*barred);
    if (const TabStop* const next = Order_.afterBarred(stop))
        moveFocusTo(*next, next != &stop);
    else
        Focus_.drop();
}

// ---- Hands

void HeadlessWindow::press(const KeyStroke& stroke) {
    byHand([this, &stroke] {
        const bool struck = Focus_.holder() != nullptr && Focus_.holder()->strike(stroke);
        if (leavesField(stroke)) moveFocusByTab((stroke.modifiers & ShiftKey) != 0);
        if (!struck) Order_.pressMnemonic(stroke, focusedHere());
    });
}

void HeadlessWindow::focus(PlacedControl& control) {
    byHand([&] {
        if (placedHere(control).focusTarget() != nullptr) moveFocusTo(placedHere(control), false);
    });
}

void HeadlessWindow::click(PlacedControl& control, std::int32_t position) {
    byMouseInField(control, [position](FieldWidget& field) { field.click(position); });
}

void HeadlessWindow::doubleClick(PlacedControl& control, std::int32_t position) {
    click(control, position);
    byMouseInField(control, [position](FieldWidget& field) { field.clickAgain(position); });
}

void HeadlessWindow::rightClick(PlacedControl& control) {
    byMouseInField(control, [](FieldWidget& field) { field.rightClick(); });
}

void HeadlessWindow::spin(PlacedControl& control, bool up) {
    byMouse([&] {
        if (UpDown* const spinner = control.control().widgets().upDown) spinner->press(up);
    });
}

void HeadlessWindow::pick(PlacedControl& control, std::int32_t item) {
    byMouseInField(control, [&](const FieldWidget& /*field*/) {
        ComboBox* const box = control.control().widgets().comboBox;
        if (box == nullptr) return;
        if (!box->isDropped()) box->pressButton();
        if (box->isDropped()) box->pick(item);
    });
}

void HeadlessWindow::turnWheel(PlacedControl& control, std::int32_t notches) {
    Input_.run([&] {
        if (FieldWidget* const target = placedHere(control).focusTarget()) target->turnWheel(notches);
    });
}

void HeadlessWindow::drop(PlacedControl& control, std::int32_t position, std::u16string_view text) {
    const TextEntry* const box = control.control().widgets().entry;
    if (box != nullptr && !box->takesDrop()) return;
    byMouseInField(control, [&](FieldWidget& field) { field.drop(position, text); });
}

PlacedHeadlessControl* HeadlessWindow::focusedHere() const {
    return Focus_.holder() != nullptr ? &placedWith(*Focus_.holder()) : nullptr;
}

}  // namespace kel::headless
