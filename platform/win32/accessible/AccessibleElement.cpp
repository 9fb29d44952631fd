#include "platform/win32/accessible/AccessibleElement.h"

#include <string>

#include "host/Widgets.h"
#include "platform/win32/accessible/AutomationProvider.h"

namespace kel::win32 {

namespace {

bool isSelf(const VARIANT& which) { return which.vt == VT_I4 && which.lVal == CHILDID_SELF; }

VARIANT numberOf(LONG number) {
    VARIANT out{};
    out.vt = VT_I4;
    out.lVal = number;
    return out;
}

LONG roleOf(AccessibleRole role) {
    switch (role) {
        case AccessibleRole::ComboBox: return ROLE_SYSTEM_COMBOBOX;
        case AccessibleRole::SpinBox: return ROLE_SYSTEM_SPINBUTTON;
        case AccessibleRole::CheckBox: return ROLE_SYSTEM_CHECKBUTTON;
        case AccessibleRole::ProgressBar: return ROLE_SYSTEM_PROGRESSBAR;
        case AccessibleRole::Text: break;
    }
    return ROLE_SYSTEM_TEXT;
}

LONG stateOf(const Accessible& described, bool hasFocus) {
    LONG state = 0;
    if (!described.enabled) state |= STATE_SYSTEM_UNAVAILABLE;
    if (described.focusable) state |= STATE_SYSTEM_FOCUSABLE;
    if (hasFocus) state |= STATE_SYSTEM_FOCUSED;
    if (described.readOnly) state |= STATE_SYSTEM_READONLY;
    if (described.hidden) state |= STATE_SYSTEM_PROTECTED;
    if (described.checked == CheckBox::Checked) state |= STATE_SYSTEM_CHECKED;
    if (described.checked == CheckBox::Grey) state |= STATE_SYSTEM_MIXED;
    if (described.expanded) state |= *described.expanded ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    return state;
}

/// The words that the system's own objects have for what a press does.
std::u16string actionOf(const Accessible& described) {
    if (described.checked) return *described.checked == CheckBox::Unchecked ? u"Check" : u"Uncheck";
    if (described.expanded) return *described.expanded ? u"Close" : u"Open";
    return {};
}

bool hasFocus(const AccessibleSource& source) {
    HWND const focus = GetFocus();
    return focus != nullptr && (focus == source.window() || IsChild(source.window(), focus) != FALSE);
}

HRESULT objectOf(HWND window, IDispatch** out) {
    *out = SystemAccess::instance().standardObject(window, OBJID_WINDOW).detach();
    return *out != nullptr ? S_OK : S_FALSE;
}

}  // namespace

AccessibleElement::AccessibleElement(ole::Module& module, std::shared_ptr<AccessibleLink> link)
    : ComObject(module, nullptr), Part(static_cast<ComObject&>(*this)), Link_(std::move(link)) {}

void* AccessibleElement::find(REFIID iid) {
    if (IsEqualGUID(iid, IID_IDispatch)) return static_cast<IAccessible*>(this);
    return ole::asOneOf<IAccessible, IOleWindow, IServiceProvider>(iid, *this);
}

HRESULT AccessibleElement::about(const VARIANT& which, AboutControl act) noexcept {
    return guarded([&] {
        return Link_->with(CO_E_OBJNOTCONNECTED, [&](AccessibleSource& source, Control& control) -> HRESULT {
            return isSelf(which) ? act(source, control) : E_INVALIDARG;
        });
    });
}

HRESULT AccessibleElement::tell(const VARIANT& which, BSTR* out, Deed<std::u16string(const Accessible&)> say) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return about(which, [&](AccessibleSource&, Control& control) -> HRESULT {
        const std::u16string text = say(describe(control));
        if (text.empty()) return S_FALSE;
        *out = ole::makeBstr(text);
        return S_OK;
    });
}

HRESULT AccessibleElement::standard(Deed<HRESULT(IAccessible&)> act) noexcept {
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) -> HRESULT {
        if (!Standard_) Standard_ = SystemAccess::instance().standardObject(source.window(), OBJID_CLIENT);
        return Standard_ ? act(*Standard_.get()) : E_FAIL;
    });
}

// ---- IDispatch: the system has the names

HRESULT AccessibleElement::GetTypeInfoCount(UINT* count) noexcept {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return standard([&](IAccessible& object) { return object.GetTypeInfoCount(count); });
}

HRESULT AccessibleElement::GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return standard([&](IAccessible& object) { return object.GetTypeInfo(index, locale, info); });
}

HRESULT AccessibleElement::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) noexcept {
    if (names == nullptr || ids == nullptr) return E_POINTER;
    return standard([&](IAccessible& object) { return object.GetIDsOfNames(iid, names, count, locale, ids); });
}

HRESULT AccessibleElement::Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                  EXCEPINFO* exception, UINT* argumentError) noexcept {
    if (arguments == nullptr) return E_POINTER;
    ComPtr<ITypeInfo> info;
    const HRESULT found = GetTypeInfo(0, locale, info.receive());
    if (FAILED(found)) return found;
    return info->Invoke(static_cast<IAccessible*>(this), id, flags, arguments, result, exception, argumentError);
}

// ---- What it is

HRESULT AccessibleElement::get_accName(VARIANT which, BSTR* name) noexcept {
    const HRESULT told = tell(which, name, [](const Accessible& described) { return described.name; });
    // A label of the host's may stand in front.
    return told != S_FALSE ? told : standard([&](IAccessible& object) { return object.get_accName(which, name); });
}

HRESULT AccessibleElement::get_accValue(VARIANT which, BSTR* value) noexcept {
    if (value == nullptr) return E_POINTER;
    *value = nullptr;
    return about(which, [&](AccessibleSource&, Control& control) -> HRESULT {
        const Accessible described = describe(control);
        if (described.hidden) return E_ACCESSDENIED;
        if (described.checked) return DISP_E_MEMBERNOTFOUND;
        *value = ole::makeBstr(described.value);
        return S_OK;
    });
}

/// There are no states for them.
HRESULT AccessibleElement::get_accDescription(VARIANT which, BSTR* description) noexcept {
    return tell(which, description, &remarksOn);
}

HRESULT AccessibleElement::get_accRole(VARIANT which, VARIANT* role) noexcept {
    if (role == nullptr) return E_POINTER;
    *role = VARIANT{};
    return about(which, [&](AccessibleSource&, Control& control) {
        *role = numberOf(roleOf(describe(control).role));
        return S_OK;
    });
}

HRESULT AccessibleElement::get_accState(VARIANT which, VARIANT* state) noexcept {
    if (state == nullptr) return E_POINTER;
    *state = VARIANT{};
    VARIANT seen{};
    standard([&](IAccessible& object) { return object.get_accState(which, &seen); });
    return about(which, [&](AccessibleSource& source, Control& control) {
        const LONG hidden = seen.vt == VT_I4 ? seen.lVal & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN) : 0;
        *state = numberOf(stateOf(describe(control), hasFocus(source)) | hidden);
        return S_OK;
    });
}

HRESULT AccessibleElement::get_accHelp(VARIANT which, BSTR* help) noexcept {
    return tell(which, help, [](const Accessible& described) { return described.help; });
}

HRESULT AccessibleElement::get_accHelpTopic(BSTR* file, VARIANT, LONG* topic) noexcept {
    if (file == nullptr || topic == nullptr) return E_POINTER;
    *file = nullptr;
    *topic = 0;
    return DISP_E_MEMBERNOTFOUND;
}

HRESULT AccessibleElement::get_accKeyboardShortcut(VARIANT which, BSTR* shortcut) noexcept {
    return tell(which, shortcut, &shortcutOf);
}

HRESULT AccessibleElement::get_accDefaultAction(VARIANT which, BSTR* action) noexcept {
    return tell(which, action, &actionOf);
}

// ---- Where it is

HRESULT AccessibleElement::get_accParent(IDispatch** parent) noexcept {
    if (parent == nullptr) return E_POINTER;
    *parent = nullptr;
    return standard([&](IAccessible& object) { return object.get_accParent(parent); });
}

HRESULT AccessibleElement::get_accChildCount(LONG* count) noexcept {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) {
        *count = static_cast<LONG>(source.parts().size());
        return S_OK;
    });
}

/// Parts count from 1.
HRESULT AccessibleElement::get_accChild(VARIANT which, IDispatch** child) noexcept {
    if (child == nullptr) return E_POINTER;
    *child = nullptr;
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) -> HRESULT {
        const std::vector<HWND> parts = source.parts();
        if (which.vt != VT_I4 || which.lVal < 1 || static_cast<std::size_t>(which.lVal) > parts.size())
            return E_INVALIDARG;
        return objectOf(parts[static_cast<std::size_t>(which.lVal) - 1], child);
    });
}

HRESULT AccessibleElement::get_accFocus(VARIANT* focus) noexcept {
    if (focus == nullptr) return E_POINTER;
    *focus = VARIANT{};
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) -> HRESULT {
        if (!hasFocus(source)) return S_FALSE;
        *focus = numberOf(CHILDID_SELF);
        return S_OK;
    });
}

HRESULT AccessibleElement::get_accSelection(VARIANT* selection) noexcept {
    if (selection == nullptr) return E_POINTER;
    *selection = VARIANT{};
    return about(numberOf(CHILDID_SELF), [](AccessibleSource&, Control&) { return S_FALSE; });
}

HRESULT AccessibleElement::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT which) noexcept {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
    *left = *top = *width = *height = 0;
    return about(which, [&](AccessibleSource& source, Control&) -> HRESULT {
        RECT area{};
        if (GetWindowRect(source.window(), &area) == FALSE) return E_FAIL;
        *left = area.left;
        *top = area.top;
        *width = area.right - area.left;
        *height = area.bottom - area.top;
        return S_OK;
    });
}

HRESULT AccessibleElement::accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept {
    if (end == nullptr) return E_POINTER;
    *end = VARIANT{};
    if (direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD)
        return standard([&](IAccessible& object) { return object.accNavigate(direction, start, end); });
    return about(start, [&](AccessibleSource& source, Control&) -> HRESULT {
        const std::vector<HWND> parts = source.parts();
        if (parts.empty()) return S_FALSE;
        const HRESULT found = objectOf(direction == NAVDIR_FIRSTCHILD ? parts.front() : parts.back(), &end->pdispVal);
        if (found == S_OK) end->vt = VT_DISPATCH;
        return found;
    });
}

HRESULT AccessibleElement::accHitTest(LONG left, LONG top, VARIANT* hit) noexcept {
    if (hit == nullptr) return E_POINTER;
    *hit = VARIANT{};
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) -> HRESULT {
        const auto isAt = [&](HWND window) {
            RECT area{};
            return GetWindowRect(window, &area) != FALSE && PtInRect(&area, {left, top}) != FALSE;
        };
        for (HWND const part : source.parts()) {
            if (!isAt(part)) continue;
            hit->vt = VT_DISPATCH;
            return objectOf(part, &hit->pdispVal);
        }
        if (!isAt(source.window())) return S_FALSE;
        *hit = numberOf(CHILDID_SELF);
        return S_OK;
    });
}

// ---- What is done to it

HRESULT AccessibleElement::accSelect(LONG flags, VARIANT which) noexcept {
    return about(which, [&](AccessibleSource&, Control& control) -> HRESULT {
        FieldWidget* const field = control.widgets().field;
        if ((flags & SELFLAG_TAKEFOCUS) == 0) return E_INVALIDARG;
        if (field == nullptr || !field->takesInput()) return S_FALSE;
        field->setFocus();
        return S_OK;
    });
}

HRESULT AccessibleElement::accDoDefaultAction(VARIANT which) noexcept {
    return about(which, [](AccessibleSource&, Control& control) -> HRESULT {
        return press(control) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT AccessibleElement::put_accName(VARIANT, BSTR) noexcept { return DISP_E_MEMBERNOTFOUND; }

HRESULT AccessibleElement::put_accValue(VARIANT which, BSTR value) noexcept {
    return about(which, [&](AccessibleSource&, Control& control) -> HRESULT {
        return enterText(control, ole::textOf(value)) ? S_OK : E_ACCESSDENIED;
    });
}

// ---- IOleWindow

HRESULT AccessibleElement::GetWindow(HWND* window) noexcept {
    if (window == nullptr) return E_POINTER;
    *window = nullptr;
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) {
        *window = source.window();
        return S_OK;
    });
}

HRESULT AccessibleElement::ContextSensitiveHelp(BOOL) noexcept { return E_NOTIMPL; }

// ---- IServiceProvider

HRESULT AccessibleElement::QueryService(REFGUID service, REFIID iid, void** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (IsEqualGUID(service, __uuidof(IAccessible))) return QueryInterface(iid, out);
    if (!IsEqualGUID(service, __uuidof(IRawElementProviderSimple))) return E_NOINTERFACE;
    return about(numberOf(CHILDID_SELF), [&](AccessibleSource& source, Control&) {
        return ole::giveNew(new AutomationProvider(countedIn(), Link_, source.speakingWindow()), iid, out);
    });
}

}  // namespace kel::win32
