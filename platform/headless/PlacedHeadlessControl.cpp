#include "platform/headless/PlacedHeadlessControl.h"

#include "platform/headless/HeadlessWindow.h"

namespace kel::headless {

namespace {

/// What is drawn during a job is shown before the job goes on.
class JobView final : public PictureView {
public:
    JobView(const PictureBox& box, const HeadlessWindow& window) : Box_(box), Window_(window) {}
    void outOfDate() override {}
    void paintAgain() override {}
    void paintNow() override { Window_.paint(); }
    Size extentOf(std::u16string_view text) const override { return Box_.extentUnseen(text.size()); }

private:
    const PictureBox& Box_;
    const HeadlessWindow& Window_;
};

}  // namespace

PlacedHeadlessControl::PlacedHeadlessControl(HeadlessWindow& window, const ClassModel& model,
                                             const Placement& placement, std::size_t order, ControlObserver& observer)
    : TabStop(placement.tabIndex, order, placement.tabStop),
      Window_(window),
      Observer_(observer),
      Name_(placement.name),
      Bounds_(placement.bounds),
      Visible_(placement.visible) {
    ControlHost host = window.hostFor(*this, *this);
    Control_ = model.makeControl(host);
}

PlacedHeadlessControl::~PlacedHeadlessControl() {
    Window_.forget(*this);
    Control_.reset();
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
    Window_.recheckFocus();
}

// ---- Its widgets

std::unique_ptr<PictureView> PlacedHeadlessControl::makeView(PictureBox& box) {
    return std::make_unique<JobView>(box, Window_);
}

void PlacedHeadlessControl::moveFocusTo(FieldWidget& field) { Window_.moveFocusTo(field); }

void PlacedHeadlessControl::focusBarred(FieldWidget& /*field*/) { Window_.recheckFocus(); }

std::u16string PlacedHeadlessControl::clipboardText() { return Window_.clipboard(); }

void PlacedHeadlessControl::setClipboardText(std::u16string_view text) { Window_.setClipboard(text); }

}  // namespace kel::headless
