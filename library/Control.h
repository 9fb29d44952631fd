#pragma once

#include <optional>

#include "library/Dispatch.h"

namespace kel {

class PropertyBag;
struct WidgetSet;

/// A number that a person may change, as far as it goes and by how much at once.
struct NumberRange {
    double value = 0;
    double minimum = 0;
    double maximum = 0;
    double step = 0;
    friend bool operator==(const NumberRange&, const NumberRange&) = default;
};

/// What those who cannot see a control are told beside what its widgets show.
struct Standing {
    bool enabled = true;    ///< and its widgets with it
    bool required = false;  ///< a person must not leave it empty
    bool valid = true;      ///< as it stands, without being committed
    bool locked = false;
    bool changed = false;  ///< the value as it would be committed now is not the original one
    std::optional<NumberRange> range{};
    std::optional<NumberRange> moment{};  ///< the same of a date or a time, as day serials
};

/// One control on a form. Its container drives it, always on the user-interface thread, in this order:
/// `Initialize`; then `InitProperties` (newly placed in a designer) or `ReadProperties` (a saved form is
/// loaded); `Resize` whenever it has sized the control; `Show` when it first appears; `EnterFocus` before
/// the first child widget gets the focus and `ExitFocus` after the last one has lost it.
class Control : public LibraryObject {
public:
    virtual void Initialize() {}
    virtual void InitProperties() = 0;
    virtual void ReadProperties(PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) const = 0;
    virtual void Resize() = 0;
    virtual void Show() = 0;
    virtual void EnterFocus() = 0;
    virtual void ExitFocus() = 0;
    /// Numbers and dates are written and read by `region` from now on, which outlives the control. The value stays.
    virtual void RegionChanged(const RegionalSettings& /*region*/) {}

    /// The child widgets as they stand, for whoever draws, drives or describes the control.
    virtual WidgetSet widgets() = 0;

    /// The value of the default property, read without touching the text: as it was last committed, and as committing
    /// the text that stands would leave it.
    virtual Variant heldValue() const { return {}; }
    virtual Variant valueToStore() const { return heldValue(); }

    virtual Standing standing() { return {}; }
    /// A person sets the number of a field that has a range or a moment, as its spinner would. False where the field
    /// does not take it, and stays as it is.
    virtual bool enterNumber(double /*number*/) { return false; }
};

}  // namespace kel
