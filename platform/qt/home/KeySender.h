#pragma once

#include "host/Keys.h"

namespace kel::qt {

/// Presses and releases a key where the focus is, or on the active window where nothing has it.
void strikeKey(const KeyStroke& stroke);

/// The same, after the events that are under way.
void sendKeyLater(const KeyStroke& stroke);

/// Whether a key is still to be sent.
bool hasKeysToSend();

}  // namespace kel::qt
