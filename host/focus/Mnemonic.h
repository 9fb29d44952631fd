#pragma once

#include <string_view>

namespace kel {

/// The character that a caption marks with "&"; 0 for none.
char16_t mnemonicIn(std::u16string_view caption);

/// Whether a key that types `letter` is that of a mnemonic, in either case.
bool isKeyOf(char16_t mnemonic, char32_t letter);

}  // namespace kel
