#pragma once

#include <QString>

#include "host/Keys.h"

class QKeyEvent;

/// Keys between Qt and the controls.
namespace kel::qt {

KeyStroke strokeOf(const QKeyEvent& event);

/// What a key event of Qt is made of.
struct QtKey {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

/// The key that gives `stroke` when it comes back through `strokeOf`.
QtKey keyFor(const KeyStroke& stroke);

}  // namespace kel::qt
