#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Home.h"
#include "host/focus/TabKey.h"

namespace kel::headless {

/// What the windows of a home share of the person in front of them: one keyboard, one clipboard.
class Input {
public:
    std::u16string Clipboard;
    TabKey Tab;

    /// The window that keys go to from now on.
    void activate(FormWindow& window) { Active_ = &window; }
    bool isActive(const FormWindow& window) const { return Active_ == &window; }
    void forget(const FormWindow& window) {
        if (Active_ == &window) Active_ = nullptr;
    }

    /// Presses a key on the active window: after the input that is under way, else at once.
    void send(std::int16_t keyCode);

    /// Runs one input and the keys that are sent meanwhile.
    template <class Action>
    void run(Action action) {
        if (UnderWay_) {
            action();
            return;
        }
        const Turn turn(*this);
        action();
        pressSent();
    }

private:
    /// One input at a time; what is left to press when it fails is dropped.
    class Turn {
    public:
        explicit Turn(Input& input) : Input_(input) { Input_.UnderWay_ = true; }
        ~Turn() {
            Input_.UnderWay_ = false;
            Input_.Sent_.clear();
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        Input& Input_;
    };

    void pressSent();

    FormWindow* Active_ = nullptr;
    std::vector<std::int16_t> Sent_;
    bool UnderWay_ = false;
};

}  // namespace kel::headless
