#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "library/Runtime.h"
#include "values/Color.h"

namespace kel {

struct RegionalSettings;

/// What the controls of one home share, on Windows those of one apartment. Written by `KelControlHandler::SetRuntime`
/// and `InitControls` only.
struct SharedSettings {
    std::shared_ptr<kel::Runtime> Runtime;  ///< none until a host hands one over or a control is loaded
    bool HandedOver = false;                ///< a host has handed one over, which is kept for it

    Color FieldBackNormal = colors::SystemWindow;
    Color FieldBackLocked = colors::SystemWindow;
    Color FieldBackFocus = colors::SystemWindow;
    Color FieldBackFocusLocked = colors::SystemWindow;

    char16_t DecimalSeparatorCode = u'.';
    std::int16_t DefaultDecimals = 0;

    /// Width of the combo box's drop-down button. Stays 0 when the host hands its run-time object over
    /// before any control is loaded.
    std::int16_t ButtonWidthPixels = 0;

    /// Makes the run-time object that `InitControls` falls back to. Set once, by the platform.
    std::function<std::shared_ptr<kel::Runtime>()> makeDefaultRuntime;
    /// The one for controls that go by another region than the home does; none for the home's own. Set once, by a
    /// platform whose containers have regions of their own.
    std::function<std::shared_ptr<kel::Runtime>(const RegionalSettings& region)> regionalRuntime;

    /// That of a region which needs one of its own, while no host has handed one over.
    std::shared_ptr<kel::Runtime> runtimeOf(const RegionalSettings& region) const {
        return HandedOver || !regionalRuntime ? nullptr : regionalRuntime(region);
    }
};

/// The character that a run-time object's decimal separator begins with.
char16_t separatorCodeOf(Runtime& runtime);

/// Stores `runtime` in place of any held one, then takes separator, digits and field colours from it.
void adoptRuntime(SharedSettings& settings, std::shared_ptr<Runtime> runtime);

}  // namespace kel
