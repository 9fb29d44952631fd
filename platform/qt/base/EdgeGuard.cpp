#include "platform/qt/base/EdgeGuard.h"

#include <QtGlobal>

namespace kel::qt {

void reportHostError(const AutomationError& error) {
    qWarning("KelControls8: error 0x%08X of the run-time object: %s", static_cast<unsigned>(error.code()),
             error.what());
}

}  // namespace kel::qt
