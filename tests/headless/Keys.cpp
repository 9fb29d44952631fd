#include "tests/headless/Keys.h"

#include <algorithm>

#include "forms/play/Script.h"
#include "tests/Drawn.h"

namespace kel::test {

namespace {

bool takePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

void type(const Strike& strike, std::u16string_view text) {
    while (!text.empty()) strike({0, takeCodePoint(text), NoModifier});
}

/// As scripts name them; for Tab these have a command.
void pressKey(const Strike& strike, std::string key) {
    std::replace(key.begin(), key.end(), '*', ' ');
    const std::size_t tab = key.find("Tab");
    if (tab != std::string::npos) key.replace(tab, 3, "F4");
    const ScriptCommand command = readScript("keys", "key " + key).commands.front();
    KeyStroke stroke = command.stroke;
    if (tab != std::string::npos) stroke.code = keys::Tab;
    for (int count = command.numbers.empty() ? 1 : command.numbers[0]; count > 0; --count) strike(stroke);
}

}  // namespace

std::string drawn(const TextEntry& box) {
    return toUtf8(
        drawnText(box.text(), static_cast<std::size_t>(box.selStart()), static_cast<std::size_t>(box.selLength())));
}

void put(TextEntry& box, std::string_view drawing) {
    const Drawing drawn(drawing);
    box.setText(drawn.text);
    box.setSelStart(static_cast<std::int32_t>(drawn.start));
    box.setSelLength(static_cast<std::int32_t>(drawn.length));
}

void press(const Strike& strike, const std::function<void(std::u16string_view)>& setClipboard, std::string_view keys) {
    while (!keys.empty()) {
        if (takePrefix(keys, " ")) continue;
        const bool paste = takePrefix(keys, "paste");
        const bool isText = takePrefix(keys, "'");
        const std::size_t end = std::min(keys.find(isText ? '\'' : ' '), keys.size());
        const std::string_view what = keys.substr(0, end);
        if (paste) setClipboard(fromUtf8(what).value());
        if (isText && !paste)
            type(strike, fromUtf8(what).value());
        else
            pressKey(strike, paste ? "Ctrl+V" : std::string(what));
        keys.remove_prefix(end + (isText ? 1 : 0));
    }
}

void press(FormWindow& window, std::string_view keys) {
    press([&window](const KeyStroke& stroke) { window.press(stroke); },
          [&window](std::u16string_view text) { window.setClipboard(text); }, keys);
}

}  // namespace kel::test
