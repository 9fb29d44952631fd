#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kel {

/// The character that a caption marks with "&"; 0 for none.
char16_t mnemonicIn(std::u16string_view caption);

/// A caption as it is read, and where in it the mnemonic stands.
struct ReadCaption {
    std::u16string text;
    std::size_t mnemonic = std::u16string::npos;
};

ReadCaption readCaption(std::u16string_view caption);

/// Whether a key that types `letter` is that of a mnemonic, in either case.
bool isKeyOf(char16_t mnemonic, char32_t letter);

}  // namespace kel
