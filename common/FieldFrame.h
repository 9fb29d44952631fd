#pragma once

#include "common/FieldLayout.h"
#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/SharedSettings.h"

/// What controls ask of the host alike: its run-time object and the tooltip.
namespace kel {

void setCaptionFont(const ControlHost& host, TextualWidget& widget);
void setFieldFont(const ControlHost& host, TextualWidget& widget);

/// The host's run-time object, a default one for this once while none is held; where the host has none and the control
/// goes by a region of its own, a default one for that.
std::shared_ptr<Runtime> runtimeFor(const ControlHost& host);
/// Its conversions.
std::shared_ptr<RuntimeDates> runtimeDates(const ControlHost& host);

/// The tooltip that the host gives the control. Where it gives none, the widget keeps its own.
template <class Shown>
void takeToolTip(const ControlHost& host, Shown& widget) {
    const std::u16string text = host.container.toolTipText();
    if (!text.empty()) widget.setToolTip(text);
}

/// The focus goes on to the next control, as by Tab.
void moveFocusOn(const ControlHost& host);

}  // namespace kel
