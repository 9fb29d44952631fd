#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "library/TypeModel.h"

namespace kel {

/// One of the things that a component host is told beforehand of how a control wants to be treated: the bit that the
/// registry and the control itself say it with, and the word for it in a manifest.
struct ControlStatus {
    std::uint32_t bit = 0;
    std::string_view word;
    bool ofFieldsToo = true;  ///< else only of a control that takes no focus
};

/// Laid out anew when sized, active as long as it is seen, told its site first; one that takes no focus, never active
/// for the user.
inline constexpr std::array ControlStatuses{
    ControlStatus{0x00001, "recomposeonresize"},   ControlStatus{0x00010, "cantlinkinside"},
    ControlStatus{0x00080, "insideout"},           ControlStatus{0x00100, "activatewhenvisible"},
    ControlStatus{0x04000, "nouiactivate", false}, ControlStatus{0x20000, "setclientsitefirst"},
};

constexpr bool hasStatus(const ClassModel& model, const ControlStatus& status) {
    return status.ofFieldsToo || !model.takesFocus;
}

constexpr std::uint32_t statusBitsOf(const ClassModel& model) {
    std::uint32_t bits = 0;
    for (const ControlStatus& status : ControlStatuses)
        if (hasStatus(model, status)) bits |= status.bit;
    return bits;
}

}  // namespace kel
