#pragma once

#include "library/Dispatch.h"

namespace kel {

class PropertyBag;
struct WidgetSet;

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
};

}  // namespace kel
