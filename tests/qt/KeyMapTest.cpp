#include "platform/qt/base/KeyMap.h"

#include <gtest/gtest.h>
#include <QKeyEvent>

namespace kel::test {
namespace {

KeyStroke throughQt(const KeyStroke& stroke) {
    const qt::QtKey key = qt::keyFor(stroke);
    return qt::strokeOf(QKeyEvent(QEvent::KeyPress, key.key, key.modifiers, key.text));
}

/// What a script types is what the controls see; the scripts themselves press the other keys.
TEST(KeyMap, StrokesComeBackFromQt) {
    for (const char32_t character : std::u32string(U"azAZ09 ,;+é\u0301\u4E2D\U0001F600")) {
        const KeyStroke stroke = strokeFor(character);
        const KeyStroke back = throughQt(stroke);
        EXPECT_EQ(back.code, stroke.code) << static_cast<unsigned>(character);
        EXPECT_EQ(keyPressCharacter(back), character);
        EXPECT_EQ(back.modifiers, stroke.modifiers);
    }
}

TEST(KeyMap, KeysAsKeyboardsSendThem) {
    struct Case {
        const char* what;
        int key;
        Qt::KeyboardModifiers modifiers;
        const char16_t* text;
        std::int16_t code;
        char32_t keyPress;
    };
    const Case cases[] = {
        {"a shifted digit", Qt::Key_Exclam, Qt::ShiftModifier, u"!", keys::Packet, U'!'},
        {"the keypad's point, a comma here", Qt::Key_Comma, Qt::KeypadModifier, u",", keys::Decimal, U','},
        {"the keypad's point", Qt::Key_Period, Qt::KeypadModifier, u".", keys::Decimal, U'.'},
        {"the point among the letters", Qt::Key_Period, Qt::NoModifier, u".", keys::Packet, U'.'},
        {"the keypad's five", Qt::Key_5, Qt::KeypadModifier, u"5", 101, U'5'},
        {"the keypad's Enter", Qt::Key_Enter, Qt::KeypadModifier, u"\r", keys::Enter, 13},
        {"a letter of another script", 0x430, Qt::NoModifier, u"\u0430", keys::Packet, U'\u0430'},
        {"Ctrl and Alt as AltGr", Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, u"\u20AC", 'E', U'\u20AC'},
        {"Alt and a letter is a mnemonic", Qt::Key_N, Qt::AltModifier, u"n", 'N', 0},
        {"the system's own key", Qt::Key_E, Qt::MetaModifier, u"e", 'E', 0},
        {"a modifier alone", Qt::Key_Shift, Qt::ShiftModifier, u"", 16, 0},
        {"a dead key", Qt::Key_Dead_Acute, Qt::NoModifier, u"", 0, 0},
    };
    for (const Case& row : cases) {
        const KeyStroke stroke =
            qt::strokeOf(QKeyEvent(QEvent::KeyPress, row.key, row.modifiers, QString::fromUtf16(row.text)));
        EXPECT_EQ(stroke.code, row.code) << row.what;
        EXPECT_EQ(keyPressCharacter(stroke), row.keyPress) << row.what;
    }
}

}  // namespace
}  // namespace kel::test
