#pragma once

#include <string_view>

namespace kel {

/// The character that a caption marks with "&"; 0 for none.
char16_t mnemonicIn(std::u16string_view caption);

}  // namespace kel
