#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/win32/ole/automation/DispatchCaller.h"
#include "platform/win32/ole/control/Classes.h"

namespace kel::win32::ole {

/// The controls that a designer has selected, late-bound: they may stand in another apartment, or behind an object
/// of the host's.
class SelectedObjects {
public:
    SelectedObjects() = default;
    /// Throws AutomationError where one of them is no control of this library.
    SelectedObjects(IUnknown* const* objects, std::size_t count);

    bool empty() const { return Objects_.empty(); }
    /// Of the first; there is one.
    const CreatableClass& type() const { return *Types_.front(); }

    /// The properties of this page that all of them have, in the order of the first one's rows.
    std::vector<const MemberRow*> rows(DesignPage page) const;

    /// What a property is in all of them; nothing where they differ.
    std::optional<Variant> value(const MemberRow& row) const;

    /// Puts what was typed or chosen for a property into each of them. Returns in words why one does not take it;
    /// nothing where all do.
    std::optional<std::u16string> put(const MemberRow& row, const Variant& typed) const;

private:
    std::u16string complaint(const MemberRow& row, const Variant& typed, long code) const;

    std::vector<DispatchCaller> Objects_;
    std::vector<const CreatableClass*> Types_;
};

/// The value as an editor shows it; empty for none.
std::u16string shownText(const Variant& value);

/// What was typed as a property's own type; `before` says what a variant's is. Throws AutomationError.
Variant typedValue(const MemberRow& row, const Variant& typed, const Variant& before);

}  // namespace kel::win32::ole
