#pragma once

#include "library/Dispatch.h"

namespace kel {

/// The creatable class through which a host hands its run-time object to the library.
class KelControlHandler final : public LibraryObject {
public:
    explicit KelControlHandler(SharedSettings& settings) : Settings_(settings) {}

    const ClassModel& model() const override;

    /// Replaces any held run-time object and takes separator, digits and field colours from the new one.
    /// Throws AutomationError when `runtime` is no run-time object or one of its members fails.
    void SetRuntime(const ObjectPtr& runtime);

private:
    SharedSettings& Settings_;
};

extern const ClassModel KelControlHandlerModel;

}  // namespace kel
