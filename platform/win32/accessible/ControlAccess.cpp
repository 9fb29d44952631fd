#include "platform/win32/accessible/ControlAccess.h"

#include <tuple>
#include <utility>

#include "host/Widgets.h"
#include "platform/win32/accessible/AutomationProvider.h"

namespace kel::win32 {

namespace {

bool isObject(LPARAM data, LONG object) { return static_cast<DWORD>(data) == static_cast<DWORD>(object); }

Selection selectionIn(Control& control) {
    const TextEntry* const entry = control.widgets().entry;
    return entry != nullptr ? entry->selection() : Selection();
}

auto statesOf(const Accessible& control) {
    return std::tuple(control.enabled, control.focusable, control.readOnly, control.hidden, control.checked,
                      control.expanded);
}

/// What readers are told of when it changes.
constexpr PROPERTYID Watched[] = {UIA_NamePropertyId,
                                  UIA_HelpTextPropertyId,
                                  UIA_AccessKeyPropertyId,
                                  UIA_IsEnabledPropertyId,
                                  UIA_IsKeyboardFocusablePropertyId,
                                  UIA_IsPasswordPropertyId,
                                  UIA_IsRequiredForFormPropertyId,
                                  DataValidProperty,
                                  UIA_ValueValuePropertyId,
                                  UIA_ValueIsReadOnlyPropertyId,
                                  UIA_RangeValueValuePropertyId,
                                  UIA_ExpandCollapseExpandCollapseStatePropertyId,
                                  ToggleStateProperty};

bool isSame(const VARIANT& one, const VARIANT& other) {
    if (one.vt != other.vt) return false;
    switch (one.vt) {
        case VT_BSTR: return ole::textOf(one.bstrVal) == ole::textOf(other.bstrVal);
        case VT_BOOL: return one.boolVal == other.boolVal;
        case VT_I4: return one.lVal == other.lVal;
        case VT_R8: return one.dblVal == other.dblVal;
        default: return true;
    }
}

BOOL CALLBACK forget(HWND window, LPARAM /*unused*/) {
    SystemAccess::instance().forget(window);
    return TRUE;
}

}  // namespace

bool ControlAccess::isAsked(UINT message, LPARAM data) {
    return message == WM_GETOBJECT && (isObject(data, OBJID_CLIENT) || isObject(data, AutomationObject));
}

ControlAccess::ControlAccess(AccessibleSource& source, ole::Module& module)
    : Source_(source), Module_(module), Link_(std::make_shared<AccessibleLink>(source)) {}

ControlAccess::~ControlAccess() {
    Link_->cut();
    if (!Provided_) return;
    forget(Source_.window(), 0);
    EnumChildWindows(Source_.window(), &forget, 0);
}

template <class Made, class... Arguments>
ComPtr<Made> ControlAccess::make(Arguments&&... arguments) const {
    return ComPtr<Made>::adopt(new Made(Module_, Link_, std::forward<Arguments>(arguments)...));
}

LRESULT ControlAccess::answer(HWND window, WPARAM wide, LPARAM data) {
    // Not while a program waits for the answer: what the control is may take a look into its host.
    if (!Told_) changed();
    const SystemAccess& system = SystemAccess::instance();
    if (isObject(data, AutomationObject)) {
        if (!system.hasAutomation()) return 0;
        Provided_ = true;
        return system.resultOf(window, wide, data, *make<AutomationProvider>(window).get());
    }
    if (!Element_) Element_ = make<AccessibleElement>();
    return system.resultOf(wide, *Element_.get());
}

// ---- Changes

UINT ControlAccess::restMessage() {
    static const UINT Message = RegisterWindowMessageW(L"KelControls8.Rest");
    return Message;
}

void ControlAccess::changed() {
    if (!std::exchange(Pending_, true)) PostMessageW(Source_.window(), restMessage(), 0, 0);
}

void ControlAccess::rested() {
    Pending_ = false;
    // What is told may be the end of this.
    const std::shared_ptr<AccessibleLink> link = Link_;
    link->with(S_OK, [&](AccessibleSource&, Control& control) {
        const Spoken now{describe(control), selectionIn(control)};
        // So may be the look into the host.
        if (link->isCut()) return S_OK;
        const std::optional<Spoken> before = std::exchange(Told_, now);
        if (before && *before != now) tell(*before, now);
        return S_OK;
    });
}

void ControlAccess::tell(const Spoken& before, const Spoken& now) const {
    HWND const window = Source_.speakingWindow();
    if (SystemAccess::instance().isHeard()) tellProvider(before, now);
    const Accessible& was = before.control;
    const Accessible& is = now.control;
    const auto notify = [window](bool differs, DWORD event) {
        if (differs) NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
    };
    // Some of it the system's own windows say as well, as systems differ; it is heard once more then.
    notify(was.name != is.name, EVENT_OBJECT_NAMECHANGE);
    notify(remarksOn(was) != remarksOn(is), EVENT_OBJECT_DESCRIPTIONCHANGE);
    notify(was.help != is.help, EVENT_OBJECT_HELPCHANGE);
    notify(was.mnemonic != is.mnemonic, EVENT_OBJECT_ACCELERATORCHANGE);
    notify(was.value != is.value, EVENT_OBJECT_VALUECHANGE);
    notify(statesOf(was) != statesOf(is), EVENT_OBJECT_STATECHANGE);
    notify(before.selection != now.selection, EVENT_OBJECT_TEXTSELECTIONCHANGED);
}

void ControlAccess::tellProvider(const Spoken& before, const Spoken& now) const {
    const SystemAccess& system = SystemAccess::instance();
    const auto provider = make<AutomationProvider>(Source_.speakingWindow());
    if (before.selection != now.selection) system.raise(*provider.get(), TextSelectionChangedEvent);
    if (before.control == now.control) return;
    for (const PROPERTYID property : Watched) {
        ole::OwnedVariant was;
        ole::OwnedVariant is;
        putProperty(before.control, property, *was);
        putProperty(now.control, property, *is);
        if (!isSame(*was, *is)) system.raise(*provider.get(), property, *is);
    }
    if (before.control.value != now.control.value) system.raise(*provider.get(), TextChangedEvent);
}

void ControlAccess::focused() const {
    const SystemAccess& system = SystemAccess::instance();
    if (system.isHeard()) system.raise(*make<AutomationProvider>(Source_.speakingWindow()).get(), FocusChangedEvent);
}

}  // namespace kel::win32
