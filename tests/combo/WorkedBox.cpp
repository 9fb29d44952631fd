#include "tests/combo/WorkedBox.h"

#include "tests/headless/Keys.h"

namespace kel::test {

namespace {

bool takeWord(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

std::int32_t numberIn(std::string_view text) { return std::stoi(std::string(text)); }

}  // namespace

void WorkedBox::play(std::string_view script) {
    while (!script.empty()) {
        const std::size_t end = std::min(script.find(';'), script.size());
        playStep(script.substr(0, end));
        script.remove_prefix(std::min(end + 2, script.size()));
    }
}

void WorkedBox::playStep(std::string_view step) {
    if (takeWord(step, "pick ")) {
        Box_.pick(numberIn(step));
    } else if (takeWord(step, "hover ")) {
        Box_.highlight(numberIn(step));
    } else if (takeWord(step, "wheel ")) {
        Box_.turnWheel(numberIn(step));
    } else if (takeWord(step, "button")) {
        Box_.pressButton();
    } else {
        // A character alone stands for the key that types it.
        press([this](const KeyStroke& key) { Box_.strike(key.code == 0 ? strokeFor(key.character) : key); },
              [this](std::u16string_view text) { Clipboard_ = text; }, step);
    }
}

std::string WorkedBox::look() const {
    const std::string list = Box_.isDropped() ? " open " + std::to_string(Box_.highlighted()) : "";
    return drawn(Box_) + ' ' + std::to_string(Box_.listIndex()) + list;
}

}  // namespace kel::test
