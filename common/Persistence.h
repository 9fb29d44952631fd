#pragma once

#include "host/DepthGuard.h"
#include "host/PropertyBag.h"
#include "host/System.h"
#include "library/Control.h"

namespace kel {

/// Passes every persisted property of the bag through its public setter, in the model's reading order. The first
/// control to be loaded finds no run-time object, and has one made.
void readPersisted(ControlHost& host, Control& control, PropertyBag& bag);

/// Hands every persisted property to the bag, in the model's writing order.
void writePersisted(const Control& control, PropertyBag& bag);

}  // namespace kel
