#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "library/Control.h"

namespace kel {

/// What kind of thing a control is.
enum class AccessibleRole : std::uint8_t { Text, ComboBox, SpinBox, CheckBox, ProgressBar };

/// A control in words and figures, for those who cannot see it: readers, magnifiers, voice, test programs. It is one
/// thing, whatever widgets it is made of.
struct Accessible {
    AccessibleRole role = AccessibleRole::Text;
    std::u16string name;    ///< the caption as it is read; without one, the tooltip
    char16_t mnemonic = 0;  ///< that leads here; 0 for none
    std::u16string help;    ///< the tooltip, where it is not the name
    std::u16string value;   ///< empty where it is hidden, and for a check box
    std::optional<NumberRange> range{};
    std::optional<NumberRange> moment{};  ///< of a date or a time, for tools that want a number there

    bool enabled = true;
    bool focusable = false;
    bool readOnly = false;
    bool required = false;
    bool invalid = false;
    bool hidden = false;  ///< nobody is told the text
    bool multiLine = false;
    std::optional<std::int32_t> checked{};  ///< as a check box counts
    std::optional<bool> expanded{};         ///< whether the list is open, where there is one

    friend bool operator==(const Accessible&, const Accessible&) = default;
};

Accessible describe(Control& control);

/// "required, not valid": for those whose tools have no other way to say it.
std::u16string remarksOn(const Accessible& described);

/// "Alt+Q", the keys that lead here; empty for none.
std::u16string shortcutOf(const Accessible& described);

/// The help, and the remarks after it, for those who have a description and nothing else.
std::u16string helpAndRemarks(const Accessible& described);

/// Assistive technology writes all of the text, by the control's rules. False where nothing can be written.
bool enterText(Control& control, std::u16string_view text);

/// What a press does: a check box toggles, a list opens or closes. False where there is nothing to press.
bool press(Control& control);

}  // namespace kel
