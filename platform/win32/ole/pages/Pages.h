#pragma once

#include "platform/win32/ole/com/EntryPoints.h"

namespace kel::win32::ole {

/// Makes the property page of this identifier; none where it is none of ours.
Maker pageMaker(REFCLSID clsid);

}  // namespace kel::win32::ole
