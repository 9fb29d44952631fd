#include "platform/win32/ole/pages/SelectedObjects.h"

#include <algorithm>

#include "library/AutomationError.h"
#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/automation/ValueBag.h"
#include "platform/win32/ole/automation/VariantConversion.h"
#include "values/NumberReader.h"
#include "values/Text.h"

namespace kel::win32::ole {

namespace {

const CreatableClass& classOf(IUnknown& object) {
    const auto control = ComPtr<IOleObject>::of(&object);
    CLSID clsid{};
    if (control) check(control->GetUserClassID(&clsid), "the object does not say what it is");
    const CreatableClass* const found = findClass(clsid);
    if (found == nullptr) throw AutomationError(E_NOINTERFACE, "the page knows no such control");
    return *found;
}

bool isNone(const Variant& value) {
    return std::holds_alternative<Null>(value) || std::holds_alternative<Empty>(value);
}

bool isEmptyText(const Variant& value) {
    const auto* const text = std::get_if<std::u16string>(&value);
    return text != nullptr && text->empty();
}

/// A text the way the system reads it for a property of this type: dates as people write them here.
Variant asSystemReads(const Variant& typed, TypeTag type) {
    OwnedVariant value;
    toAutomation(typed, *value);
    return valueFromAutomation(*value, type);
}

}  // namespace

SelectedObjects::SelectedObjects(IUnknown* const* objects, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        auto dispatch = ComPtr<IDispatch>::of(objects[i]);
        if (!dispatch) throw AutomationError(E_NOINTERFACE, "the object has no properties");
        Types_.push_back(&classOf(*objects[i]));
        Objects_.emplace_back(std::move(dispatch));
    }
}

std::vector<const MemberRow*> SelectedObjects::rows(DesignPage page) const {
    std::vector<const MemberRow*> found;
    if (empty()) return found;
    for (const MemberRow& row : type().model.members) {
        const auto hasRow = [&](const CreatableClass* other) {
            const MemberRow* const same = findMember(other->model, row.name);
            return same != nullptr && same->isDesigned() && same->type == row.type && same->design.page == page;
        };
        if (row.isDesigned() && std::all_of(Types_.begin(), Types_.end(), hasRow)) found.push_back(&row);
    }
    return found;
}

std::optional<Variant> SelectedObjects::value(const MemberRow& row) const {
    Variant first = Objects_.front().get(row.name);
    for (std::size_t i = 1; i < Objects_.size(); ++i)
        if (Objects_[i].get(row.name) != first) return std::nullopt;
    return first;
}

std::optional<std::u16string> SelectedObjects::put(const MemberRow& row, const Variant& typed) const {
    for (const DispatchCaller& object : Objects_) {
        try {
            const Variant before = object.get(row.name);
            const Variant wanted = typedValue(row, typed, before);
            object.put(row.name, wanted);
            const Variant after = object.get(row.name);
            const bool isPassedOver = row.type != TypeTag::Any && after == before && wanted != before;
            const bool isLost = isNone(after) && !isNone(wanted) && !isEmptyText(wanted);
            if (isLost) object.put(row.name, before);
            if (isPassedOver || isLost) return complaint(row, typed, S_OK);
        } catch (const AutomationError& error) {
            return complaint(row, typed, error.code());
        }
    }
    return std::nullopt;
}

/// In the words of late-bound calls where the type is wrong; else what is right, as the property's own help has it.
std::u16string SelectedObjects::complaint(const MemberRow& row, const Variant& typed, long code) const {
    using Kind = DispatchFault::Kind;
    if (code == DISP_E_TYPEMISMATCH || code == DISP_E_OVERFLOW) {
        const Kind kind = code == DISP_E_OVERFLOW ? Kind::Overflow : Kind::TypeMismatch;
        return describeFault({kind, 0}, type().model, row.name, {&typed, 1});
    }
    return std::u16string(row.name) + u" stays as it is: \"" + shownText(typed) + u"\" is not taken. " +
           std::u16string(row.help);
}

std::u16string shownText(const Variant& value) {
    std::u16string text;
    if (!isNone(value)) static_cast<void>(coerce(asSystemReads(value, TypeTag::String), systemRegion(), text));
    return text;
}

Variant typedValue(const MemberRow& row, const Variant& typed, const Variant& before) {
    if (row.type != TypeTag::Any) return exactValue(row.type, row.name, asSystemReads(typed, row.type));
    // A field reads its own value as a person types it, but for dates, which are shown as the system writes them.
    if (!std::holds_alternative<double>(before)) return asSystemReads(typed, TypeTag::Date);
    if (!isNumeric(typed, systemRegion())) throw AutomationError(DISP_E_TYPEMISMATCH, "no number");
    return typed;
}

}  // namespace kel::win32::ole
