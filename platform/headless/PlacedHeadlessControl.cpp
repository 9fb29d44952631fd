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
      Input_(services.input),
      Focus_(services.focus),
      Name_(placement.name),
      Bounds_(placement.bounds),
      Visible_(placement.visible) {
    ControlHost host{*this, *this, services.system, services.settings, services.region};
    Control_ = model.makeControl(host);
}

PlacedHeadlessControl::~PlacedHeadlessControl() {
    Focus_.forget(*this);
    Control_.reset();
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
    Enabled_ = enabled;
    Focus_.recheck();
}

}  // namespace kel::headless
