#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/Keys.h"
#include "host/widgets/Widget.h"

namespace kel {

/// A check box with its caption. "&" marks the caption's mnemonic, which toggles the box and gives it the focus. A new
/// box is enabled, visible, unchecked, without a caption.
class CheckBox : public FieldWidget {
public:
    static constexpr std::int32_t Unchecked = 0;
    static constexpr std::int32_t Checked = 1;
    static constexpr std::int32_t Grey = 2;

    virtual const std::u16string& caption() const = 0;
    virtual void setCaption(std::u16string_view caption) = 0;

    virtual std::int32_t value() const = 0;
    /// Notifies a click when it differs from the old value. The user toggles between unchecked and checked; a click
    /// on the grey box unchecks it.
    virtual void setValue(std::int32_t value) = 0;
};

class CheckBoxListener {
public:
    /// The state differs from before, by the user or by code.
    virtual void Check1_Click() = 0;
    /// A character, or a control character, is about to act; 0 swallows it.
    virtual void Check1_KeyPress(char32_t& KeyAscii) = 0;

protected:
    ~CheckBoxListener() = default;
};

}  // namespace kel
