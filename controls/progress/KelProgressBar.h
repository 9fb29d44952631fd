#pragma once

#include <optional>

#include "common/FieldFrame.h"
#include "controls/progress/ProgressText.h"
#include "library/Control.h"

namespace kel {

/// The progress of a long job: a bar with the percentage in its middle and, on demand, an estimate of the time left.
/// Everything is drawn inside the put of `Value`, at once, so that a job that never lets the host come to itself is
/// seen to go on.
class KelProgressBar final : public Control {
public:
    explicit KelProgressBar(ControlHost& host);

    /// Wipes the bar and its text; the next value that moves the bar draws them again.
    void Clear() { Picture1_.clear(); }
    bool get_Enabled() const { return Host_.container.enabled(); }
    void put_Enabled(bool enabled);
    /// First and last value of the job. Either takes the other one along when it passes it; `Value` stays.
    std::int32_t get_Max() const { return Range_.max; }
    void put_Max(std::int32_t maximum);
    std::int32_t get_Min() const { return Range_.min; }
    void put_Min(std::int32_t minimum);
    void Refresh() { Picture1_.refresh(); }
    bool get_ShowTime() const { return ShowTime_; }
    void put_ShowTime(bool show);
    /// A job begins: back to the first value, without drawing, and the time counts from here.
    void Start();
    std::int32_t get_Value() const { return Value_; }
    /// Kept within the range. Draws when the bar grows or shrinks by a whole twip or the time left is due to be said
    /// anew; otherwise it costs next to nothing, so that a job may put it with every step.
    void put_Value(std::int32_t value);

    const ClassModel& model() const override;
    void InitProperties() override {}
    void ReadProperties(PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    void Resize() override;
    void Show() override;
    void EnterFocus() override {}
    void ExitFocus() override {}
    void RegionChanged(const RegionalSettings& region) override { Host_.region = region; }
    WidgetSet widgets() override { return {.picture = &Picture1_}; }
    Variant heldValue() const override { return Value_; }
    Standing standing() override { return {.enabled = get_Enabled()}; }

private:
    static constexpr std::int32_t NeverDrawn = -1;

    float clock() const { return static_cast<float>(Host_.system.timer()); }
    std::int32_t barWidth(double share) const { return nearestPart(share, Picture1_.bounds().width); }
    bool isDrawn() const { return !Picture1_.picture().text.empty(); }
    void holdValue(std::int32_t value);
    void drawValue(float now);
    std::u16string timeText(float now);
    void draw(std::u16string text);
    void drawAgain();
    template <auto Put>
    void report() {
        Host_.container.propertyChanged(model().rowPutBy<Put>());
    }

    ControlHost Host_;
    PictureBox Picture1_;

    ProgressRange Range_;
    std::int32_t Value_ = 1;
    bool ShowTime_ = true;
    std::int32_t LastBarWidth_ = NeverDrawn;
    double Share_ = 0;                         ///< of the value put last
    double DrawnShare_ = 0;                    ///< what the picture shows
    std::optional<double> ProgressStartTime_;  ///< none before the first job
    double NextTimeUpdate_ = 0;
};

extern const ClassModel KelProgressBarModel;

}  // namespace kel
