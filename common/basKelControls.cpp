#include "common/basKelControls.h"

#include <cmath>

namespace kel {

namespace {
constexpr double ButtonWidthTwips = 240;
}

void InitControls(SharedSettings& settings, const System& system) {
    if (!settings.Runtime && settings.makeDefaultRuntime) adoptRuntime(settings, settings.makeDefaultRuntime());
    settings.ButtonWidthPixels =
        static_cast<std::int16_t>(std::nearbyint(system.scale().exactPixels(ButtonWidthTwips)));
}

}  // namespace kel
