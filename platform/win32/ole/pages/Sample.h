#pragma once

#include "platform/win32/ole/pages/SelectedObjects.h"

namespace kel::win32::ole {

class OleControl;

/// A control of the same class that nobody sees, to show what properties lead to before they are put.
class Sample {
public:
    explicit Sample(const CreatableClass& type);

    /// Throws AutomationError.
    void put(const MemberRow& row, const Variant& typed);

    /// A value as a field with these properties shows it.
    std::u16string shown(const Variant& value) const;

private:
    explicit Sample(OleControl& made);

    ComPtr<IUnknown> Held_;
    OleControl& Control_;
    DispatchCaller Members_;
};

}  // namespace kel::win32::ole
