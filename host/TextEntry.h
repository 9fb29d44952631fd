#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/widgets/Widget.h"

namespace kel {

/// A widget with a text that can be edited. Positions and lengths count UTF-16 units.
class TextEntry : public FieldWidget {
public:
    /// Valid until the text changes.
    virtual const std::u16string& text() const = 0;

    /// Puts a text, of any length, and the caret to 0. Notifies a change when it differs from the old one.
    virtual void setText(std::u16string_view text) = 0;

    virtual bool textEquals(std::u16string_view other) const = 0;
    virtual std::int32_t textLength() const = 0;

    virtual std::int32_t selStart() const = 0;
    /// Drops the selection. A position past the end is the end.
    virtual void setSelStart(std::int32_t position) = 0;
    virtual std::int32_t selLength() const = 0;
    /// Selects from the selection's start; cut at the end of the text.
    virtual void setSelLength(std::int32_t length) = 0;
    virtual std::u16string selText() const = 0;
    /// Replaces the selection as typing would, caret after it, undo kept; the maximum length does not bind.
    virtual void setSelText(std::u16string_view text) = 0;

    virtual bool locked() const = 0;
    virtual void setLocked(bool locked) = 0;

    /// Binds typing and pasting, not `setText`; 0 is no limit.
    virtual std::int32_t maxLength() const = 0;
    virtual void setMaxLength(std::int32_t units) = 0;

protected:
    using FieldWidget::FieldWidget;
};

}  // namespace kel
