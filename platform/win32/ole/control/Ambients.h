#pragma once

#include "host/widgets/Widget.h"
#include "platform/win32/ole/control/ClientSite.h"
#include "values/Color.h"

namespace kel::win32::ole {

/// What a container says of the surroundings of its controls. What it does not say is as here.
struct Ambients {
    bool userMode = true;  ///< a person fills the form in; else somebody designs it
    bool uiDead = false;   ///< what the person does is not for the form at the moment
    bool rightToLeft = false;
    LCID locale = LOCALE_USER_DEFAULT;
    Color ground = colors::SystemButtonFace;
    FontFace font;  ///< for texts that nobody has chosen one for
};

/// Those of a site, which may be none.
Ambients readAmbients(const ClientSite& site);

}  // namespace kel::win32::ole
