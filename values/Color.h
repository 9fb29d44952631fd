#pragma once

#include <cstdint>

namespace kel {

/// 0x00BBGGRR; with the top bit set, 0x800000nn is the system colour with index nn.
using Color = std::uint32_t;

namespace colors {
inline constexpr Color SystemWindow = 0x80000005;      ///< background of an editing field
inline constexpr Color SystemWindowText = 0x80000008;  ///< its text
inline constexpr Color SystemHighlight = 0x8000000D;
inline constexpr Color SystemButtonFace = 0x8000000F;
inline constexpr Color SystemGrayText = 0x80000011;
inline constexpr Color SystemButtonText = 0x80000012;
}  // namespace colors

constexpr bool isSystemColor(Color color) { return (color & 0x80000000U) != 0; }

/// The colour itself, where no desktop says what the system's are: those of a light one, with black text.
constexpr Color onLightDesktop(Color color) {
    switch (color) {
        case colors::SystemWindow: return 0xFFFFFF;
        case colors::SystemHighlight: return 0xD03000;
        case colors::SystemButtonFace: return 0xD8D8D8;
        case colors::SystemGrayText: return 0x777777;
        default: return isSystemColor(color) ? 0 : color;
    }
}

}  // namespace kel
