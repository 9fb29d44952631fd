#pragma once

#include <map>
#include <memory>

#include "library/SharedSettings.h"
#include "platform/win32/home/Win32Services.h"
#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// What the objects of one apartment share. Its run-time object, the host's or a default one, belongs to the apartment
/// that it was handed over or made in: it is called and let go on that thread alone.
class Apartment {
public:
    /// Of the calling thread. `ends` is run there, just before the component system leaves the thread.
    explicit Apartment(void (*ends)());
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

    SharedSettings& settings() { return Settings_; }

    /// Lets go of the run-time object, on its own thread; objects that are left do with default ones. The system calls
    /// into this code no longer.
    void end();

private:
    /// The default run-time object of another region than the user's; it needs no registered one.
    struct Regional {
        explicit Regional(const RegionalSettings& region) : services(region), runtime(makeRuntime(services)) {}

        Win32RuntimeServices services;
        std::shared_ptr<Runtime> runtime;
    };
    std::shared_ptr<Runtime> regionalRuntime(const RegionalSettings& region);

    std::shared_ptr<Runtime> defaultRuntime();
    bool ended() const { return Watch_.QuadPart == 0; }

    Win32RuntimeServices Services_;
    std::shared_ptr<Runtime> Default_;  ///< once one has been made
    std::map<const RegionalSettings*, std::unique_ptr<Regional>> Regional_;
    SharedSettings Settings_;
    ULARGE_INTEGER Watch_{};  ///< for the end of the thread's component system; 0 for none
};

}  // namespace kel::win32::ole
