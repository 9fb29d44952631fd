#include "tests/combo/FakeBox.h"

#include "tests/headless/Keys.h"
#include "values/Text.h"

namespace kel::test {

namespace {

bool takeWord(std::string_view& text, std::string_view word) {
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

std::int32_t numberIn(std::string_view text) { return std::stoi(std::string(text)); }

}  // namespace

void FakeBox::play(std::string_view script) {
    while (!script.empty()) {
        const std::size_t end = std::min(script.find(';'), script.size());
        playStep(script.substr(0, end));
        script.remove_prefix(std::min(end + 2, script.size()));
    }
}

void FakeBox::playStep(std::string_view step) {
    if (takeWord(step, "pick ")) {
        Editor_.pick(numberIn(step));
    } else if (takeWord(step, "hover ")) {
        Editor_.highlight(numberIn(step));
    } else if (takeWord(step, "wheel ")) {
        TextBoxListener& listener = Editor_.edit().listener();
        if (listener.Text1_UsesWheel()) listener.Text1_Wheel(numberIn(step));
    } else if (takeWord(step, "button")) {
        Editor_.pressButton();
    } else {
        test::press(*this, step);
    }
}

/// A character alone stands for the key that types it.
void FakeBox::press(const KeyStroke& stroke) {
    Editor_.edit().strike(stroke.code == 0 ? strokeFor(stroke.character) : stroke);
}

std::string FakeBox::look() const {
    std::u16string drawn = text();
    const auto start = static_cast<std::size_t>(selStart()), length = static_cast<std::size_t>(selLength());
    if (length == 0)
        drawn.insert(start, u"|");
    else
        drawn.insert(start + length, u"]").insert(start, u"[");
    const std::string list = isDropped() ? " open " + std::to_string(Editor_.highlighted()) : "";
    return toUtf8(drawn) + ' ' + std::to_string(listIndex()) + list;
}

}  // namespace kel::test
