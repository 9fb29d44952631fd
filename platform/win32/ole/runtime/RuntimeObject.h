#pragma once

#include "library/Runtime.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// The default run-time object with its members as rows, for late-bound hosts. Begins with one reference.
ComObject* makeRuntimeObject(Module& module, std::shared_ptr<Runtime> runtime, IUnknown* outer);

}  // namespace kel::win32::ole
