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

}  // namespace kel
