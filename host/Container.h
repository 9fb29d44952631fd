#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/Geometry.h"
#include "library/TypeModel.h"

namespace kel {

struct FontFace;

/// The place of one control in its host. Outlives the control.
class Container {
public:
    /// False until the host has given the control a size.
    virtual bool hasSize() const = 0;
    /// Twips.
    virtual Size size() const = 0;
    /// Calls the control's `Resize` before it returns when the size differs.
    virtual void setSize(Size size) = 0;

    virtual bool enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;

    /// The native handle of the control's own window, 0 where there is none.
    virtual std::int32_t windowHandle() = 0;

    /// The name the host knows the control by.
    virtual std::u16string displayName() const = 0;

    /// Fills in what nobody has chosen of a font with the host's own, if it has one.
    virtual void completeFont(FontFace& /*face*/) const {}

    /// A property that the host's form keeps was set: the form needs saving.
    virtual void propertyChanged(const MemberRow& property) = 0;

    /// The user is about to change a property that data can be bound to. False: it stays as it is.
    virtual bool mayChange(const MemberRow& /*property*/) { return true; }
    /// Such a property has another value, and `propertyChanged` did not tell of it.
    virtual void boundChanged(const MemberRow& /*property*/) {}

    /// What the control holds, or how it stands (`Control::heldValue`, `Control::standing`), may have become something
    /// else, by a person or by code. Told once what has been done is done, and needlessly at times: who follows the
    /// control compares.
    virtual void standingMayDiffer() {}
    /// A person has edited the text.
    virtual void textEdited() {}
    /// A person is through with the field, by the Enter key: the focus is about to move on, if it can.
    virtual void finished() {}

    /// Runs the host's handlers; by-reference arguments come back in `arguments`.
    virtual void raiseEvent(const EventRow& event, std::span<Variant> arguments) = 0;

    /// "ToolTipText" of the host's extender. Failures are the container's to swallow; none reads as "".
    virtual std::u16string toolTipText() const = 0;
    virtual void setToolTipText(std::u16string_view text) = 0;

protected:
    ~Container() = default;
};

}  // namespace kel
