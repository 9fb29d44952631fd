#include "platform/qt/base/KeyMap.h"

#include <algorithm>
#include <iterator>
#include <QKeyEvent>

namespace kel::qt {

namespace {

constexpr char32_t LastAscii = 0x7E;
constexpr std::int16_t KeypadZero = 96;
constexpr std::int16_t F1 = 112;

struct KeyPair {
    int key;
    std::int16_t code;
};

/// Keys whose codes follow no rule. Where two keys share a code, the first one is sent for it.
constexpr KeyPair NamedKeys[] = {
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
    {Qt::Key_PageUp, keys::PageUp},
    {Qt::Key_PageDown, keys::PageDown},
    {Qt::Key_End, keys::End},
    {Qt::Key_Home, keys::Home},
    {Qt::Key_Left, keys::Left},
    {Qt::Key_Up, keys::Up},
    {Qt::Key_Right, keys::Right},
    {Qt::Key_Down, keys::Down},
    {Qt::Key_Insert, keys::Insert},
    {Qt::Key_Delete, keys::Delete},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

/// Keys of the numeric keypad that type.
constexpr KeyPair KeypadKeys[] = {
    {Qt::Key_Asterisk, 106},        {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109}, {Qt::Key_Period, keys::Decimal},
    {Qt::Key_Comma, keys::Decimal}, {Qt::Key_Slash, 111},
};

template <std::size_t Count>
std::int16_t codeIn(const KeyPair (&pairs)[Count], int key) {
    const auto found =
        std::find_if(std::begin(pairs), std::end(pairs), [key](KeyPair pair) { return pair.key == key; });
    return found == std::end(pairs) ? std::int16_t{0} : found->code;
}

template <std::size_t Count>
int keyIn(const KeyPair (&pairs)[Count], std::int16_t code) {
    const auto found =
        std::find_if(std::begin(pairs), std::end(pairs), [code](KeyPair pair) { return pair.code == code; });
    return found == std::end(pairs) ? 0 : found->key;
}

bool isLetterOrDigit(int code) { return (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'); }

std::int16_t codeOf(int key, bool keypad) {
    if (keypad && key >= Qt::Key_0 && key <= Qt::Key_9) return static_cast<std::int16_t>(KeypadZero + key - Qt::Key_0);
    if (isLetterOrDigit(key)) return static_cast<std::int16_t>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<std::int16_t>(F1 + key - Qt::Key_F1);
    const std::int16_t onKeypad = keypad ? codeIn(KeypadKeys, key) : std::int16_t{0};
    return onKeypad != 0 ? onKeypad : codeIn(NamedKeys, key);
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
    QtKey key{0, heldFor(stroke.modifiers), textFor(stroke)};
    const std::int16_t code = stroke.code;
    if (code == keys::Tab && (stroke.modifiers & ShiftKey) != 0) {
        key.key = Qt::Key_Backtab;
    } else if (isLetterOrDigit(code)) {
        key.key = code;
    } else if (code >= F1 && code < F1 + 24) {
        key.key = Qt::Key_F1 + code - F1;
    } else if (code >= KeypadZero && code < KeypadZero + 10) {
        key.key = Qt::Key_0 + code - KeypadZero;
        key.modifiers |= Qt::KeypadModifier;
    } else if (const int keypad = keyIn(KeypadKeys, code); keypad != 0) {
        key.key = keypad;
        key.modifiers |= Qt::KeypadModifier;
    } else if (const int named = keyIn(NamedKeys, code); named != 0) {
        key.key = named;
    } else {
        key.key = keyOfCharacter(stroke.character);
    }
    return key;
}

}  // namespace kel::qt
