#pragma once

#include <memory>

#include "apps/kelforms/Options.h"
#include "forms/Home.h"

namespace kel::app {

/// A home and the application object that its windows need.
class HomeSession {
public:
    virtual ~HomeSession() = default;
    virtual Home& home() = 0;
    /// Serves the windows until the last one is closed.
    virtual void runUntilClosed() = 0;
};

/// Throws UsageError when this program has no home of that name. `withWindow` asks for one that a person
/// can see; a scripted one needs no display.
std::unique_ptr<HomeSession> openHome(const std::string& name, const Options& options, bool withWindow);

/// The one that was asked for, else that of the person's own system. Opens no home.
RegionalSettings regionOf(const Options& options);

/// The home with pictures and windows on this machine.
extern const char* const WindowHome;

}  // namespace kel::app
