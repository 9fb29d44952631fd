#pragma once

#include <span>

#include "host/Widgets.h"
#include "library/SharedSettings.h"

/// How an entry field shows that it has the focus, is locked, disabled or mandatory. The field's background
/// colour is itself the record of that state, so each transition starts from the colour that stands.
namespace kel {

/// A background to set, on the field that is shown or on every field widget of the control.
struct BackChange {
    Color color;
    bool everyField;
    friend bool operator==(const BackChange&, const BackChange&) = default;
};

BackChange backOnGotFocus(const SharedSettings& settings, bool locked);
BackChange backOnExitFocus(const SharedSettings& settings, bool locked);

/// After the lock or the enabled state was set; `barred` means locked or disabled now.
BackChange backOnStateChange(const SharedSettings& settings, bool barred, Color current);

constexpr Color captionColor(bool mandatory) { return mandatory ? colors::SystemHighlight : colors::SystemWindowText; }

/// On entering a text or combo box with select-on-focus: Tab selects all, a click nothing.
void selectOnFocus(TextEntry& box, bool tabKeyDown);

/// Selects what the next typed character overwrites: the character after the caret, unless something is
/// selected already. Never half a surrogate pair, and never a line break.
void selectOverwritten(TextEntry& box);

}  // namespace kel
