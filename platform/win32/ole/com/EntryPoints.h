#pragma once

#include <functional>

#include "platform/win32/ole/com/ComObject.h"
#include "platform/win32/ole/com/Registration.h"

/// What the entry points of a component server's file ask of the server. Each server has its own.
namespace kel::win32::ole {

/// Makes an object with one reference; `outer` may be null.
using Maker = std::function<ComObject*(IUnknown* outer)>;

Module& serverModule();

/// None where the server has no class of this identifier.
Maker makerOf(REFCLSID clsid);

/// What the registry is told.
LibraryEntry libraryEntry();

/// True when no object is alive; what the server itself holds on to is let go then.
bool releaseIfIdle();

}  // namespace kel::win32::ole
