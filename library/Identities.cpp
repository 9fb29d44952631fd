#include "library/Identities.h"

#include <string_view>

namespace kel {

/// By hand: a component server holds a copy of whatever the standard library prints with.
std::string textOf(const Guid& guid) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    constexpr int HighestDigit = 60;
    std::uint64_t head = std::uint64_t{guid.data1} << 32 | std::uint64_t{guid.data2} << 16 | guid.data3;
    std::uint64_t tail = 0;
    for (const std::uint8_t byte : guid.data4) tail = tail << 8 | byte;
    std::string text = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    for (char& each : text) {
        if (each == '-') continue;
        each = Digits[static_cast<std::size_t>(head >> HighestDigit)];
        head = head << 4 | tail >> HighestDigit;
        tail <<= 4;
    }
    return text;
}

}  // namespace kel
