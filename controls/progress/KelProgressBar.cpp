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

KelProgressBar::KelProgressBar(ControlHost& host) : Host_(host), Picture1_(host.widgets) {
    Picture1_.setForeColor(colors::SystemHighlight);
}

// ---- Properties

void KelProgressBar::put_Enabled(bool enabled) {
    report<&KelProgressBar::put_Enabled>();
    Host_.container.setEnabled(enabled);
    Picture1_.setEnabled(enabled);
}

void KelProgressBar::put_Max(std::int32_t maximum) {
    Range_.max = maximum;
    report<&KelProgressBar::put_Max>();
    Range_.min = std::min(Range_.min, Range_.max);
    LastBarWidth_ = NeverDrawn;
}

void KelProgressBar::put_Min(std::int32_t minimum) {
    Range_.min = minimum;
    report<&KelProgressBar::put_Min>();
    Range_.max = std::max(Range_.max, Range_.min);
    LastBarWidth_ = NeverDrawn;
}

void KelProgressBar::put_ShowTime(bool show) {
    ShowTime_ = show;
    report<&KelProgressBar::put_ShowTime>();
}

// ---- The job

void KelProgressBar::Start() {
    holdValue(Range_.min);
    ProgressStartTime_ = clock();
    NextTimeUpdate_ = *ProgressStartTime_ + SecondsToFirstTimeUpdate;
}

void KelProgressBar::holdValue(std::int32_t value) {
    if (std::exchange(Value_, value) != value) Host_.container.standingMayDiffer();
}

/// Asked with every step of a job.
void KelProgressBar::put_Value(std::int32_t value) {
    holdValue(Range_.clamp(value));
    Share_ = Range_.share(value);
    const bool moved = barWidth(Share_) != LastBarWidth_;
    if (!ShowTime_ && !moved) return;
    const float now = ShowTime_ ? clock() : 0;
    if (!moved && now <= static_cast<float>(NextTimeUpdate_)) return;
    drawValue(now);
}

void KelProgressBar::drawValue(float now) {
    DrawnShare_ = Share_;
    LastBarWidth_ = barWidth(DrawnShare_);
    draw(ShowTime_ ? percentText(DrawnShare_) + timeText(now) : percentText(DrawnShare_));
}

std::u16string KelProgressBar::timeText(float now) {
    const double elapsed = ProgressStartTime_ ? now - *ProgressStartTime_ : 0;
    TimeLeft left = timeLeft(Range_, Value_, elapsed, Host_.region);
    NextTimeUpdate_ = now + left.goodFor;
    return std::move(left.text);
}

void KelProgressBar::draw(std::u16string text) {
    const Rect surface = Picture1_.bounds();
    const Size extent = Picture1_.extentOf(text);
    const std::int32_t left = inTheMiddle(surface.width, extent.width);
    const std::int32_t top = inTheMiddle(surface.height, extent.height);
    Picture1_.draw({.text = std::move(text),
                    .textLeft = left,
                    .textTop = top,
                    .barWidth = barWidth(DrawnShare_),
                    .percent = percentOf(DrawnShare_)});
}

/// What is there, for a surface or a font that has become another one.
void KelProgressBar::drawAgain() {
    if (!isDrawn()) return;
    if (LastBarWidth_ != NeverDrawn) LastBarWidth_ = barWidth(DrawnShare_);
    draw(Picture1_.picture().text);
}

// ---- The container

void KelProgressBar::ReadProperties(PropertyBag& bag) { readPersisted(Host_, *this, bag); }

void KelProgressBar::WriteProperties(PropertyBag& bag) const { writePersisted(*this, bag); }

void KelProgressBar::Resize() {
    if (!Host_.container.hasSize()) return;
    const Size size = Host_.container.size();
    const std::int32_t before = Picture1_.bounds().width;
    Picture1_.move({0, 0, size.width, size.height});
    // Without a width all bars are alike, and the one that was drawn need not be the one of the last value.
    if (before <= 0 && isDrawn())
        drawValue(ShowTime_ ? clock() : 0);
    else
        drawAgain();
    // A bar that was wiped cannot be compared with one of another width.
    if (before != size.width && !isDrawn()) LastBarWidth_ = NeverDrawn;
}

void KelProgressBar::Show() {
    setFieldFont(Host_, Picture1_);
    takeToolTip(Host_, Picture1_);
    drawAgain();
}

}  // namespace kel
