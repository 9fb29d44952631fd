#include "library/SharedSettings.h"

#include <utility>

namespace kel {

namespace {

constexpr std::int32_t PastelColorDepth = 16;

void chooseFieldColors(SharedSettings& settings, std::int32_t colorDepth) {
    if (colorDepth >= PastelColorDepth) {
        settings.FieldBackNormal = 0x00FFFFFF;
        settings.FieldBackLocked = 0x00F0F0FF;
        settings.FieldBackFocus = 0x00C0FFC0;
        settings.FieldBackFocusLocked = 0x00C0C0FF;
        return;
    }
    settings.FieldBackNormal = colors::SystemWindow;
    settings.FieldBackLocked = colors::SystemWindow;
    settings.FieldBackFocus = 0x0080FF80;
    settings.FieldBackFocusLocked = colors::SystemWindow;
}

}  // namespace

char16_t separatorCodeOf(Runtime& runtime) {
    const std::u16string separator = runtime.DecimalSeparator();
    return separator.empty() ? u'.' : separator.front();
}

void adoptRuntime(SharedSettings& settings, std::shared_ptr<Runtime> runtime) {
    settings.Runtime = std::move(runtime);
    // A copy, because a run-time object written by the host may hand over another one while it is asked.
    const std::shared_ptr<Runtime> held = settings.Runtime;
    settings.DecimalSeparatorCode = separatorCodeOf(*held);
    settings.DefaultDecimals = held->DecimalDigits();
    chooseFieldColors(settings, held->ColorDepth());
}

}  // namespace kel
