#pragma once

#include "library/Runtime.h"
#include "platform/win32/ole/automation/DispatchCaller.h"

namespace kel::win32::ole {

/// An automation object of the host as a run-time object. Each member is looked up when it is needed; one
/// that the object lacks, or that fails, is thrown as AutomationError.
std::shared_ptr<Runtime> automationRuntime(ComPtr<IDispatch> object);

}  // namespace kel::win32::ole
