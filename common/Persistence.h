#pragma once

#include "host/PropertyBag.h"
#include "host/System.h"
#include "library/Control.h"

namespace kel {

/// Raises a counter while it lives, so that a control's own doings do not answer themselves.
class DepthGuard {
public:
    explicit DepthGuard(std::int16_t& depth) : Depth_(depth) { ++Depth_; }
    ~DepthGuard() { --Depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    std::int16_t& Depth_;
};

/// Passes every persisted property of the bag through its public setter, in the model's reading order. The first
/// control to be loaded finds no run-time object, and has one made.
void readPersisted(ControlHost& host, Control& control, PropertyBag& bag);

/// Hands every persisted property to the bag, in the model's writing order.
void writePersisted(const Control& control, PropertyBag& bag);

}  // namespace kel
