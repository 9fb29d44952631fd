#pragma once

#include "common/FieldLayout.h"
#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/SharedSettings.h"

/// What every entry field does alike with its caption and with the host's run-time object.
namespace kel {

/// Reports "Caption"; the text that is there already changes and reports nothing.
void putCaption(ControlHost& host, Label& label, const std::u16string& caption);

/// Reports "CaptionWidth". False for a negative width, which changes nothing; otherwise the layout follows.
bool putCaptionWidth(ControlHost& host, Label& label, std::int16_t twips);

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
