#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/Home.h"

/// Texts drawn with their caret, and keys written down.
namespace kel::test {

/// "12.|34", or "1[2.3]4" with a selection.
std::string drawn(const TextEntry& box);

/// Puts a text that is drawn that way; the caret comes to stand at the selection's end.
void put(TextEntry& box, std::string_view drawing);

/// Presses keys, separated by blanks: `'text'` types it, `paste'text'` pastes it, `Ctrl+Left*3` is a key.
void press(FormWindow& window, std::string_view keys);

using Strike = std::function<void(const KeyStroke&)>;
void press(const Strike& strike, const std::function<void(std::u16string_view)>& setClipboard, std::string_view keys);

}  // namespace kel::test
