#pragma once

#include "common/FieldLayout.h"
#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/SharedSettings.h"

/// What every entry field does alike with its caption and with the host's run-time object.
namespace kel {

/// A control that has just been placed in a designer goes by its name in the container.
void nameNewCaption(ControlHost& host, Label& label);

/// The caption's size changes, its place does not.
void sizeCaption(Label& label, const FieldLayout& layout);

void setCaptionFont(const ControlHost& host, TextualWidget& widget);
void setFieldFont(const ControlHost& host, TextualWidget& widget);

/// The host's run-time object, a default one for this once while none is held.
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
