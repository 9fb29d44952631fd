#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>

namespace kel {

/// Counts presses of a mouse button that belong together. The system tells the second of two, which selects a word;
/// the third, which selects a line, is found here.
class ClickCounter {
public:
    struct Press {
        bool isSecond = false;    ///< of two, as the system counts them
        int across = 0;           ///< pixels, from wherever they are counted
        int down = 0;             ///< pixels
        std::int64_t moment = 0;  ///< milliseconds, from whenever they are counted
    };
    /// How far apart two presses belong together.
    struct Reach {
        std::int64_t milliseconds = 0;
        int pixels = 0;
    };

    int count(const Press& press, const Reach& reach) {
        const bool isThird = Second_ && press.moment - Second_->moment <= reach.milliseconds &&
                             std::abs(press.across - Second_->across) <= reach.pixels &&
                             std::abs(press.down - Second_->down) <= reach.pixels;
        Second_.reset();
        if (press.isSecond) Second_ = press;
        return press.isSecond ? 2 : isThird ? 3 : 1;
    }

private:
    std::optional<Press> Second_;  ///< which the next press may follow
};

}  // namespace kel
