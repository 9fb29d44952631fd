#include "tests/headless/Keys.h"

#include <map>
#include <stdexcept>

#include "values/Text.h"

namespace kel::test {

namespace {

std::u16string wide(std::string_view utf8) { return fromUtf8(utf8).value(); }

bool takePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

void type(FormWindow& window, std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        if (splitsPair(text, i + 1)) character = 0x10000 + ((character - 0xD800) << 10) + (text[++i] - 0xDC00U);
        window.press({0, character, NoModifier});
    }
}

std::int16_t codeOf(std::string_view name) {
    static const std::map<std::string_view, std::int16_t> codes{{"Backspace", keys::Backspace},
                                                                {"Tab", keys::Tab},
                                                                {"Enter", keys::Enter},
                                                                {"Escape", keys::Escape},
                                                                {"PageUp", keys::PageUp},
                                                                {"PageDown", keys::PageDown},
                                                                {"End", keys::End},
                                                                {"Home", keys::Home},
                                                                {"Left", keys::Left},
                                                                {"Up", keys::Up},
                                                                {"Right", keys::Right},
                                                                {"Down", keys::Down},
                                                                {"Insert", keys::Insert},
                                                                {"Delete", keys::Delete},
                                                                {"F4", keys::F4}};
    if (const auto found = codes.find(name); found != codes.end()) return found->second;
    if (name.size() == 1) return name.front();
    throw std::invalid_argument("no such key: " + std::string(name));
}

void pressKey(FormWindow& window, std::string_view key) {
    KeyStroke stroke;
    if (takePrefix(key, "Alt+")) stroke.modifiers = stroke.modifiers | AltKey;
    if (takePrefix(key, "Ctrl+")) stroke.modifiers = stroke.modifiers | ControlKey;
    if (takePrefix(key, "Shift+")) stroke.modifiers = stroke.modifiers | ShiftKey;
    const std::size_t star = key.find('*');
    stroke.code = codeOf(key.substr(0, star));
    if (stroke.code == key.front()) stroke.character = static_cast<char32_t>(stroke.code);
    int count = star == std::string_view::npos ? 1 : std::stoi(std::string(key.substr(star + 1)));
    while (count-- > 0) window.press(stroke);
}

}  // namespace

std::string drawn(const TextEntry& box) {
    std::u16string text = box.text();
    const auto start = static_cast<std::size_t>(box.selStart());
    const auto length = static_cast<std::size_t>(box.selLength());
    if (length == 0) return toUtf8(text.insert(start, u"|"));
    return toUtf8(text.insert(start + length, u"]").insert(start, u"["));
}

void put(TextEntry& box, std::string_view drawing) {
    std::u16string text = wide(drawing);
    const std::size_t start = text.find_first_of(u"|[");
    const std::size_t end = text.find(u']');
    if (end != std::u16string::npos) text.erase(end, 1);
    text.erase(start, 1);
    box.setText(text);
    box.setSelStart(static_cast<std::int32_t>(start));
    if (end != std::u16string::npos) box.setSelLength(static_cast<std::int32_t>(end - 1 - start));
}

void press(FormWindow& window, std::string_view keys) {
    while (!keys.empty()) {
        if (takePrefix(keys, " ")) continue;
        const bool paste = takePrefix(keys, "paste");
        if (takePrefix(keys, "'")) {
            const std::size_t end = keys.find('\'');
            const std::u16string text = wide(keys.substr(0, end));
            if (paste) {
                window.setClipboard(text);
                pressKey(window, "Ctrl+V");
            } else {
                type(window, text);
            }
            keys.remove_prefix(end + 1);
        } else {
            const std::size_t end = std::min(keys.find(' '), keys.size());
            pressKey(window, keys.substr(0, end));
            keys.remove_prefix(end);
        }
    }
}

}  // namespace kel::test
