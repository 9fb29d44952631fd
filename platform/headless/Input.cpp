#include "platform/headless/Input.h"

#include "host/Keys.h"

namespace kel::headless {

namespace {

/// What an unshifted key types.
char32_t characterOf(std::int16_t keyCode) {
    if (keyCode == keys::Space || (keyCode >= '0' && keyCode <= '9')) return static_cast<char32_t>(keyCode);
    if (keyCode >= 'A' && keyCode <= 'Z') return static_cast<char32_t>(keyCode - 'A' + 'a');
    return 0;
}

}  // namespace

void Input::send(std::int16_t keyCode) {
    Sent_.push_back(keyCode);
    if (!UnderWay_) run([] {});
}

void Input::pressSent() {
    // A key that is pressed may send further ones.
    for (std::size_t next = 0; next < Sent_.size(); ++next) {
        const std::int16_t keyCode = Sent_[next];
        if (Active_ != nullptr) Active_->press({keyCode, characterOf(keyCode), NoModifier});
    }
}

}  // namespace kel::headless
