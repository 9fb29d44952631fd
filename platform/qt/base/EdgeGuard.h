#pragma once

#include <QtGlobal>

#include "library/AutomationError.h"

namespace kel::qt {

/// Tells the developer of an error that an object of the host has raised.
inline void reportHostError(const AutomationError& error) {
    qWarning("KelControls8: error 0x%08X of the run-time object: %s", static_cast<unsigned>(error.code()),
             error.what());
}

/// Runs `action`, which handles an event of Qt's. Errors of the host's objects pass through the controls; through
/// Qt they cannot.
template <class Action>
bool atEdge(Action action) {
    try {
        return action();
    } catch (const AutomationError& error) {
        reportHostError(error);
        return true;
    }
}

}  // namespace kel::qt
