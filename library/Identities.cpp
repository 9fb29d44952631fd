#include "library/Identities.h"

#include <cstdio>

namespace kel {

std::string textOf(const Guid& guid) {
    std::array<char, 37> text{};
    const auto& tail = guid.data4;
    std::snprintf(text.data(), text.size(), "%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X",
                  static_cast<unsigned>(guid.data1), guid.data2, guid.data3, tail[0], tail[1], tail[2], tail[3],
                  tail[4], tail[5], tail[6], tail[7]);
    return text.data();
}

}  // namespace kel
