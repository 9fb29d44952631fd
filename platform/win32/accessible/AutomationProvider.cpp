#include "platform/win32/accessible/AutomationProvider.h"

#include "host/Widgets.h"
#include "platform/win32/accessible/AutomationText.h"

namespace kel::win32 {

namespace {

CONTROLTYPEID typeOf(AccessibleRole role) {
    switch (role) {
        case AccessibleRole::ComboBox: return ComboBoxType;
        case AccessibleRole::SpinBox: return SpinnerType;
        case AccessibleRole::CheckBox: return CheckBoxType;
        case AccessibleRole::ProgressBar: return ProgressBarType;
        case AccessibleRole::Text: break;
    }
    return EditType;
}

ToggleState toggleStateOf(const Accessible& described) {
    switch (described.checked.value_or(CheckBox::Unchecked)) {
        case CheckBox::Unchecked: return ToggleState::Off;
        case CheckBox::Checked: return ToggleState::On;
        default: return ToggleState::Indeterminate;
    }
}

ExpandState expandStateOf(const Accessible& described) {
    return described.expanded.value_or(false) ? ExpandState::Expanded : ExpandState::Collapsed;
}

void put(VARIANT& out, bool value) {
    out.vt = VT_BOOL;
    out.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

void put(VARIANT& out, int value) {
    out.vt = VT_I4;
    out.lVal = value;
}

void put(VARIANT& out, double value) {
    out.vt = VT_R8;
    out.dblVal = value;
}

void put(VARIANT& out, std::u16string_view text) {
    if (text.empty()) return;
    out.bstrVal = ole::makeBstr(text);
    out.vt = VT_BSTR;
}

bool hasText(const Accessible& described) {
    return !described.checked && described.role != AccessibleRole::ProgressBar;
}

bool hasPattern(const Accessible& described, PATTERNID pattern) {
    switch (pattern) {
        case UIA_ValuePatternId:
        case UIA_TextPatternId: return hasText(described);
        case UIA_RangeValuePatternId: return described.range.has_value();
        case UIA_ExpandCollapsePatternId: return described.expanded.has_value();
        case UIA_TogglePatternId: return described.checked.has_value();
        default: return false;
    }
}

}  // namespace

void putProperty(const Accessible& described, PROPERTYID property, VARIANT& value) {
    switch (property) {
        case UIA_ControlTypePropertyId: return put(value, static_cast<int>(typeOf(described.role)));
        case UIA_NamePropertyId: return put(value, described.name);
        case UIA_HelpTextPropertyId: return put(value, described.help);
        case UIA_AccessKeyPropertyId:
            if (described.mnemonic != 0) put(value, shortcutOf(described));
            return;
        case UIA_IsEnabledPropertyId: return put(value, described.enabled);
        case UIA_IsKeyboardFocusablePropertyId: return put(value, described.focusable);
        case UIA_IsPasswordPropertyId: return put(value, described.hidden);
        case UIA_IsRequiredForFormPropertyId: return put(value, described.required);
        case DataValidProperty: return put(value, !described.invalid);
        case UIA_ValueValuePropertyId: return put(value, described.value);
        case UIA_ValueIsReadOnlyPropertyId: return put(value, described.readOnly);
        case UIA_RangeValueValuePropertyId: return put(value, described.range.value_or(NumberRange()).value);
        case UIA_ExpandCollapseExpandCollapseStatePropertyId:
            return put(value, static_cast<int>(expandStateOf(described)));
        case ToggleStateProperty: return put(value, static_cast<int>(toggleStateOf(described)));
        default: return;
    }
}

AutomationProvider::AutomationProvider(ole::Module& module, std::shared_ptr<AccessibleLink> link, HWND window)
    : ComObject(module, nullptr), Part(static_cast<ComObject&>(*this)), Link_(std::move(link)), Window_(window) {}

void* AutomationProvider::find(REFIID iid) {
    return ole::asOneOf<IRawElementProviderSimple, IValueProvider, IRangeValueProvider, IExpandCollapseProvider,
                        IToggleProvider>(iid, *this);
}

HRESULT AutomationProvider::about(AboutControl act) noexcept {
    return guarded([&] { return Link_->with(NotAvailable, act); });
}

template <class Value, class Say>
HRESULT AutomationProvider::tell(Value* out, Say say) noexcept {
    if (out == nullptr) return E_POINTER;
    return about([&](AccessibleSource&, Control& control) {
        *out = say(describe(control));
        return S_OK;
    });
}

// ---- IRawElementProviderSimple

/// Calls come in on the thread of the window.
HRESULT AutomationProvider::get_ProviderOptions(ProviderOptions* options) noexcept {
    if (options == nullptr) return E_POINTER;
    *options = static_cast<ProviderOptions>(ProviderOptions_ServerSideProvider | ProviderOptions_UseComThreading);
    return S_OK;
}

HRESULT AutomationProvider::GetPatternProvider(PATTERNID pattern, IUnknown** provider) noexcept {
    if (provider == nullptr) return E_POINTER;
    *provider = nullptr;
    return about([&](AccessibleSource&, Control& control) -> HRESULT {
        if (!hasPattern(describe(control), pattern)) return S_OK;
        if (pattern == UIA_TextPatternId)
            return ole::giveNew(new AutomationText({countedIn(), Link_, this}), IID_IUnknown,
                                reinterpret_cast<void**>(provider));
        *provider = static_cast<IRawElementProviderSimple*>(this);
        (*provider)->AddRef();
        return S_OK;
    });
}

HRESULT AutomationProvider::GetPropertyValue(PROPERTYID property, VARIANT* value) noexcept {
    if (value == nullptr) return E_POINTER;
    *value = VARIANT{};
    return about([&](AccessibleSource& source, Control& control) {
        const bool speaks = Window_ == source.speakingWindow();
        switch (property) {
            case UIA_IsControlElementPropertyId:
            case UIA_IsContentElementPropertyId: put(*value, speaks); break;
            case UIA_HasKeyboardFocusPropertyId: put(*value, speaks && GetFocus() == Window_); break;
            default: putProperty(describe(control), property, *value);
        }
        return S_OK;
    });
}

HRESULT AutomationProvider::get_HostRawElementProvider(IRawElementProviderSimple** host) noexcept {
    if (host == nullptr) return E_POINTER;
    *host = nullptr;
    return about([&](AccessibleSource&, Control&) { return SystemAccess::instance().hostOf(Window_, host); });
}

// ---- Text and number

HRESULT AutomationProvider::SetValue(LPCWSTR text) noexcept {
    return about([&](AccessibleSource&, Control& control) -> HRESULT {
        return enterText(control, unwiden(text != nullptr ? text : L"")) ? S_OK : NotEnabled;
    });
}

HRESULT AutomationProvider::get_Value(BSTR* text) noexcept {
    return tell(text, [](const Accessible& described) { return ole::makeBstr(described.value); });
}

HRESULT AutomationProvider::get_IsReadOnly(BOOL* readOnly) noexcept {
    return tell(readOnly, [](const Accessible& described) -> BOOL { return described.readOnly; });
}

HRESULT AutomationProvider::SetValue(double number) noexcept {
    return about([&](AccessibleSource&, Control& control) -> HRESULT {
        if (control.enterNumber(number)) return S_OK;
        const Accessible described = describe(control);
        if (described.readOnly || !described.focusable) return NotEnabled;
        // One that it could hold its host refuses.
        const NumberRange range = described.range.value_or(NumberRange());
        return number >= range.minimum && number <= range.maximum ? NotPossible : E_INVALIDARG;
    });
}

HRESULT AutomationProvider::tellRange(double* out, double NumberRange::*part) noexcept {
    return tell(out, [part](const Accessible& described) { return described.range.value_or(NumberRange()).*part; });
}

HRESULT AutomationProvider::get_Value(double* number) noexcept { return tellRange(number, &NumberRange::value); }

HRESULT AutomationProvider::get_Maximum(double* number) noexcept { return tellRange(number, &NumberRange::maximum); }

HRESULT AutomationProvider::get_Minimum(double* number) noexcept { return tellRange(number, &NumberRange::minimum); }

/// There are no larger steps than one.
HRESULT AutomationProvider::get_LargeChange(double* number) noexcept { return tellRange(number, &NumberRange::step); }

HRESULT AutomationProvider::get_SmallChange(double* number) noexcept { return tellRange(number, &NumberRange::step); }

// ---- List and tick

HRESULT AutomationProvider::open(bool wanted) noexcept {
    return about([&](AccessibleSource&, Control& control) -> HRESULT {
        const std::optional<bool> expanded = describe(control).expanded;
        if (!expanded) return NotPossible;
        return *expanded == wanted || press(control) ? S_OK : NotEnabled;
    });
}

HRESULT AutomationProvider::get_ExpandCollapseState(ExpandState* state) noexcept { return tell(state, &expandStateOf); }

HRESULT AutomationProvider::Toggle() noexcept {
    return about([&](AccessibleSource&, Control& control) -> HRESULT {
        if (!describe(control).checked) return NotPossible;
        return press(control) ? S_OK : NotEnabled;
    });
}

HRESULT AutomationProvider::get_ToggleState(ToggleState* state) noexcept { return tell(state, &toggleStateOf); }

}  // namespace kel::win32
