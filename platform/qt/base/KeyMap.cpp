#include "platform/qt/base/KeyMap.h"

#include <algorithm>
#include <iterator>
#include <QKeyEvent>

namespace kel::qt {

namespace {

constexpr char32_t LastAscii = 0x7E;
/// Keys that follow one another, and their codes, which do too.
struct KeyRun {
    int key;
    std::int16_t code;
    int count = 1;
    bool onKeypad = false;  ///< these are keys of the numeric keypad alone

    int keyFor(std::int16_t wanted) const { return wanted >= code && wanted < code + count ? key + wanted - code : 0; }
    std::int16_t codeOf(int wanted) const {
        return wanted >= key && wanted < key + count ? static_cast<std::int16_t>(code + wanted - key) : std::int16_t{0};
    }
};

/// Where two keys share a code, the first one is sent for it.
constexpr KeyRun Runs[] = {
    {Qt::Key_0, 96, 10, true},
    {Qt::Key_Asterisk, 106, 1, true},
    {Qt::Key_Plus, 107, 1, true},
    {Qt::Key_Minus, 109, 1, true},
    {Qt::Key_Period, keys::Decimal, 1, true},
    {Qt::Key_Comma, keys::Decimal, 1, true},
    {Qt::Key_Slash, 111, 1, true},
    {Qt::Key_A, 'A', 26},
    {Qt::Key_0, '0', 10},
    {Qt::Key_F1, 112, 24},
    {Qt::Key_Backspace, keys::Backspace},
    {Qt::Key_Tab, keys::Tab},
    {Qt::Key_Backtab, keys::Tab},
    {Qt::Key_Return, keys::Enter},
    {Qt::Key_Enter, keys::Enter},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, keys::Escape},
    {Qt::Key_Space, keys::Space},
    {Qt::Key_PageUp, keys::PageUp, 2},
    {Qt::Key_End, keys::End},
    {Qt::Key_Home, keys::Home},
    {Qt::Key_Left, keys::Left, 4},
    {Qt::Key_Insert, keys::Insert},
    {Qt::Key_Delete, keys::Delete},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144, 2},
};

std::int16_t codeOf(int key, bool keypad) {
    for (const KeyRun& run : Runs)
        if (const std::int16_t code = run.codeOf(key); code != 0 && (keypad || !run.onKeypad)) return code;
    return 0;
}

char32_t firstCharacter(QStringView text) {
    if (text.isEmpty()) return 0;
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const char32_t character = isPair ? QChar::surrogateToUcs4(text[0], text[1]) : char32_t{text[0].unicode()};
    return character >= U' ' && character != 0x7F ? character : 0;
}

Modifiers modifiersOf(Qt::KeyboardModifiers held) {
    Modifiers modifiers = NoModifier;
    if (held & Qt::ShiftModifier) modifiers = modifiers | ShiftKey;
    if (held & Qt::ControlModifier) modifiers = modifiers | ControlKey;
    if (held & Qt::AltModifier) modifiers = modifiers | AltKey;
    return modifiers;
}

Qt::KeyboardModifiers heldFor(Modifiers modifiers) {
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, (modifiers & ShiftKey) != 0);
    held.setFlag(Qt::ControlModifier, (modifiers & ControlKey) != 0);
    held.setFlag(Qt::AltModifier, (modifiers & AltKey) != 0);
    return held;
}

QString textFor(const KeyStroke& stroke) {
    if ((stroke.modifiers & ControlKey) != 0 && (stroke.modifiers & AltKey) == 0) {
        const char32_t character = keyPressCharacter(stroke);
        return character == 0 ? QString() : QString(QChar(static_cast<char16_t>(character)));
    }
    switch (stroke.code) {
        case keys::Backspace:
        case keys::Tab:
        case keys::Enter:
        case keys::Escape: return QString(QChar(stroke.code));
        case keys::Delete: return QString(QChar(0x7F));
        default: break;
    }
    return stroke.character == 0 ? QString() : QString::fromUcs4(&stroke.character, 1);
}

/// For a character that comes from no key of its own.
int keyOfCharacter(char32_t character) {
    return character > U' ' && character <= LastAscii ? static_cast<int>(QChar::toUpper(character))
                                                      : int{Qt::Key_unknown};
}

}  // namespace

KeyStroke strokeOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    KeyStroke stroke;
    stroke.modifiers = modifiersOf(held);
    stroke.character = held & Qt::MetaModifier ? 0 : firstCharacter(event.text());
    stroke.code = codeOf(event.key(), held.testFlag(Qt::KeypadModifier));
    if (stroke.code == 0 && stroke.character != 0) stroke.code = keys::Packet;
    return stroke;
}

QtKey keyFor(const KeyStroke& stroke) {
    QtKey key{keyOfCharacter(stroke.character), heldFor(stroke.modifiers), textFor(stroke)};
    const auto* const run = std::find_if(std::begin(Runs), std::end(Runs),
                                         [&](const KeyRun& some) { return some.keyFor(stroke.code) != 0; });
    if (run == std::end(Runs)) return key;
    key.key = run->keyFor(stroke.code);
    if (run->onKeypad) key.modifiers |= Qt::KeypadModifier;
    if (key.key == Qt::Key_Tab && (stroke.modifiers & ShiftKey) != 0) key.key = Qt::Key_Backtab;
    return key;
}

}  // namespace kel::qt
