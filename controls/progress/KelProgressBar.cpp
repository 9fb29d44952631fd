#include "controls/progress/KelProgressBar.h"

#include <algorithm>
#include <utility>

#include "common/Persistence.h"

namespace kel {

namespace {

constexpr double SecondsToFirstTimeUpdate = 10;

/// Where something of `extent` begins that stands in the middle of `room`.
std::int32_t inTheMiddle(std::int32_t room, std::int32_t extent) { return (room - extent) / 2; }

}  // namespace

KelProgressBar::KelProgressBar(ControlHost& host) : Host_(host), Picture1_(host.widgets.makePictureBox()) {
    Picture1_->setForeColor(colors::SystemHighlight);
}

// ---- Properties

void KelProgressBar::put_Enabled(bool enabled) {
    report(u"Enabled");
    Host_.container.setEnabled(enabled);
    Picture1_->setEnabled(enabled);
}

void KelProgressBar::put_Max(std::int32_t maximum) {
    Range_.max = maximum;
    report(u"Max");
    Range_.min = std::min(Range_.min, Range_.max);
    rangeChanged();
}

void KelProgressBar::put_Min(std::int32_t minimum) {
    Range_.min = minimum;
    report(u"Min");
    Range_.max = std::max(Range_.max, Range_.min);
    rangeChanged();
}

void KelProgressBar::rangeChanged() {
    LastBarWidth_ = NeverDrawn;
    SameBar_ = {};
}

void KelProgressBar::put_ShowTime(bool show) {
    ShowTime_ = show;
    report(u"ShowTime");
}

// ---- The job

void KelProgressBar::Start() {
    Value_ = Range_.min;
    ProgressStartTime_ = clock();
    NextTimeUpdate_ = *ProgressStartTime_ + SecondsToFirstTimeUpdate;
}

void KelProgressBar::put_Value(std::int32_t value) {
    Value_ = Range_.clamp(value);
    const bool moved = movesBar(value);
    if (!ShowTime_ && !moved) return;
    const float now = ShowTime_ ? clock() : 0;
    if (!moved && now <= static_cast<float>(NextTimeUpdate_)) return;
    const double share = Range_.share(value);
    LastBarWidth_ = barWidth(share);
    SameBar_ = valuesOfSameBar(Range_, Value_, Picture1_->bounds().width);
    draw(ShowTime_ ? percentText(share) + timeText(now) : percentText(share));
}

/// Asked with every step of a job.
bool KelProgressBar::movesBar(std::int32_t value) const {
    return !SameBar_.contains(value) && barWidth(Range_.share(value)) != LastBarWidth_;
}

std::u16string KelProgressBar::timeText(float now) {
    const double elapsed = ProgressStartTime_ ? now - *ProgressStartTime_ : 0;
    TimeLeft left = timeLeft(Range_, Value_, elapsed, Host_.region);
    NextTimeUpdate_ = now + left.goodFor;
    return std::move(left.text);
}

void KelProgressBar::draw(const std::u16string& text) {
    const Rect surface = Picture1_->bounds();
    Picture1_->draw({.text = text,
                     .textLeft = inTheMiddle(surface.width, Picture1_->textWidth(text)),
                     .textTop = inTheMiddle(surface.height, Picture1_->textHeight(text)),
                     .barWidth = LastBarWidth_});
}

// ---- The container

void KelProgressBar::ReadProperties(PropertyBag& bag) { readPersisted(Host_, *this, bag); }

void KelProgressBar::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

void KelProgressBar::Resize() {
    if (!Host_.container.hasSize()) return;
    const Size size = Host_.container.size();
    Picture1_->move({0, 0, size.width, size.height});
    SameBar_ = {};
}

void KelProgressBar::Show() {
    setFieldFont(Host_, *Picture1_);
    Picture1_->setToolTip(Host_.container.toolTipText());
}

}  // namespace kel
