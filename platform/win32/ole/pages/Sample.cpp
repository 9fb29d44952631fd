#include "platform/win32/ole/pages/Sample.h"

#include "host/Widgets.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

/// With its maker's reference.
OleControl& makeControl(const CreatableClass& type) {
    return static_cast<OleControl&>(*type.make(Library::instance(), type.model, type.identity, nullptr));
}

}  // namespace

Sample::Sample(const CreatableClass& type) : Sample(makeControl(type)) {}

Sample::Sample(OleControl& made)
    : Held_(ComPtr<IUnknown>::adopt(&made.inner())), Control_(made), Members_(ComPtr<IDispatch>::of(Held_.get())) {}

void Sample::put(const MemberRow& row, const Variant& typed) {
    Members_.put(row.name, typedValue(row, typed, Members_.get(row.name)));
}

std::u16string Sample::shown(const Variant& value) const {
    Members_.put(u"Value", value);
    const TextEntry* const box = Control_.control().widgets().entry;
    return box != nullptr ? box->text() : std::u16string();
}

}  // namespace kel::win32::ole
