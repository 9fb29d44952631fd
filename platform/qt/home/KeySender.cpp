#include "platform/qt/home/KeySender.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
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

/// It is for the one who has the focus now. An editor of a table is closed by the Enter key that moves the focus on,
/// and the table has no use for a Tab.
void sendKeyLater(const KeyStroke& stroke) {
    ++KeysToSend;
    QWidget* const focused = QApplication::focusWidget();
    QMetaObject::invokeMethod(
        qApp,
        [stroke, isMeant = focused != nullptr, meant = QPointer<QWidget>(focused)] {
            --KeysToSend;
            if (!isMeant || (!meant.isNull() && meant->isVisible())) strikeKey(stroke);
        },
        Qt::QueuedConnection);
}

bool hasKeysToSend() { return KeysToSend > 0; }

}  // namespace kel::qt
