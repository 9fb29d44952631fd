#include "platform/headless/PlacedHeadlessControl.h"

namespace kel::headless {

namespace {

/// What is drawn during a job is shown before the job goes on.
class JobView final : public PictureView {
public:
    JobView(const PictureBox& box, Painter& painter) : Box_(box), Painter_(painter) {}
    void outOfDate() override {}
    void paintAgain() override {}
    void paintNow() override { Painter_.paint(); }
    Size extentOf(std::u16string_view text) const override { return Box_.extentUnseen(text.size()); }

private:
    const PictureBox& Box_;
    Painter& Painter_;
};

}  // namespace

PlacedHeadlessControl::PlacedHeadlessControl(const ClassModel& model, const Placement& placement, std::size_t order,
                                             ControlObserver& observer, const WindowServices& services)
    : TabStop(placement.tabIndex, order, placement.tabStop),
      Observer_(observer),
      Painter_(services.painter),
      Name_(placement.name),
      Bounds_(placement.bounds),
      Seat_{.focus = services.focus, .input = services.input, .owner = *this, .visible = placement.visible} {
    ControlHost host{*this, *this, services.system, services.settings, services.region};
    Control_ = model.makeControl(host);
    Seat_.control = Control_.get();
}

PlacedHeadlessControl::~PlacedHeadlessControl() {
    Seat_.focus.forget(Seat_);
    Seat_.control = nullptr;
}

std::unique_ptr<PictureView> PlacedHeadlessControl::makeView(PictureBox& box) {
    return std::make_unique<JobView>(box, Painter_);
}

void PlacedHeadlessControl::setBounds(const Rect& bounds) {
    Bounds_.left = bounds.left;
    Bounds_.top = bounds.top;
    setSize({bounds.width, bounds.height});
}

void PlacedHeadlessControl::setSize(Size wanted) {
    if (Sized_ && wanted == size()) return;
    Bounds_.width = wanted.width;
    Bounds_.height = wanted.height;
    Sized_ = true;
    if (Control_) Control_->Resize();
}

void PlacedHeadlessControl::setEnabled(bool enabled) {
    Seat_.enabled = enabled;
    Seat_.focus.recheck();
}

char16_t PlacedHeadlessControl::mnemonic() const {
    const WidgetSet widgets = Control_->widgets();
    if (widgets.label != nullptr) return widgets.label->mnemonic();
    return widgets.checkBox != nullptr ? widgets.checkBox->mnemonic() : u'\0';
}

FieldWidget* PlacedHeadlessControl::focusTarget() const {
    FieldWidget* const target = Control_->widgets().field;
    return target != nullptr && target->takesInput() ? target : nullptr;
}

}  // namespace kel::headless
