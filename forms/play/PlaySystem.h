#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/System.h"

namespace kel {

/// The machine as a scripted session sees it: a clock that can stand still, message boxes and beeps that
/// are written down instead of waited for. The keyboard stays the platform's.
class PlaySystem final : public System {
public:
    /// `print` takes a line for each message box and beep.
    PlaySystem(System& platform, std::function<void(const std::u16string&)> print);

    /// From now on the clock stands still, but for `advance`. What is left out stays as it was.
    void setToday(Date day);
    void setTimer(double secondsSinceMidnight);
    /// Passes midnight into the next day.
    void advance(double seconds);

    Date today() const override;
    double timer() const override;
    void messageBox(std::u16string_view prompt, std::int32_t style, std::u16string_view title) override;
    void beep() override;
    bool tabKeyDown() const override { return Platform_.tabKeyDown(); }
    TwipScale scale() const override { return Platform_.scale(); }

private:
    System& Platform_;
    std::function<void(const std::u16string&)> Print_;
    std::optional<Date> Today_;
    std::optional<double> Timer_;
};

}  // namespace kel
