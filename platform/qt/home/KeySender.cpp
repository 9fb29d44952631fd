#include "platform/qt/home/KeySender.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "platform/qt/base/KeyMap.h"

namespace kel::qt {

namespace {

int KeysToSend = 0;

QWidget* keyTarget() {
    if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* const focused = QApplication::focusWidget()) return focused;
    return QApplication::activeWindow();
}

void sendKeyEvent(QEvent::Type type, const QtKey& key) {
    QWidget* const target = keyTarget();
    if (target == nullptr) return;
    QKeyEvent event(type, key.key, key.modifiers, key.text);
    QApplication::sendEvent(target, &event);
}

}  // namespace

void strikeKey(const KeyStroke& stroke) {
    const QtKey key = keyFor(stroke);
    sendKeyEvent(QEvent::ShortcutOverride, key);
    sendKeyEvent(QEvent::KeyPress, key);
    sendKeyEvent(QEvent::KeyRelease, key);
}

void sendKeyLater(const KeyStroke& stroke) {
    ++KeysToSend;
    QMetaObject::invokeMethod(
        qApp,
        [stroke] {
            --KeysToSend;
            strikeKey(stroke);
        },
        Qt::QueuedConnection);
}

bool hasKeysToSend() { return KeysToSend > 0; }

}  // namespace kel::qt
