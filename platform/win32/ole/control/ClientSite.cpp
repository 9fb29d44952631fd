#include "platform/win32/ole/control/ClientSite.h"

#include "library/AutomationError.h"
#include "platform/win32/ole/automation/DispatchCaller.h"
#include "platform/win32/ole/automation/VariantConversion.h"

namespace kel::win32::ole {

namespace {

constexpr std::u16string_view ToolTipName = u"ToolTipText";

}  // namespace

bool ClientSite::ambient(DISPID id, VARTYPE type, OwnedVariant& out) const {
    const auto properties = as<IDispatch>();
    if (!properties) return false;
    OwnedVariant given;
    DISPPARAMS none{};
    const HRESULT result = properties->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                              given.get(), nullptr, nullptr);
    if (FAILED(result) || given->vt == VT_EMPTY) return false;
    return SUCCEEDED(VariantChangeType(out.get(), given.get(), 0, type));
}

std::u16string ClientSite::displayName() const {
    OwnedVariant name;
    return ambient(DISPID_AMBIENT_DISPLAYNAME, VT_BSTR, name) ? textOf(name->bstrVal) : std::u16string();
}

ComPtr<IDispatch> ClientSite::extendedControl() const {
    ComPtr<IDispatch> extended;
    if (const auto site = as<IOleControlSite>()) {
        if (FAILED(site->GetExtendedControl(extended.receive()))) return {};
    }
    return extended;
}

std::u16string ClientSite::toolTipText() const {
    const auto extended = extendedControl();
    if (!extended) return {};
    try {
        const Variant text = DispatchCaller(extended).get(ToolTipName);
        const auto* const found = std::get_if<std::u16string>(&text);
        return found != nullptr ? *found : std::u16string();
    } catch (const AutomationError&) {
        return {};
    }
}

void ClientSite::setToolTipText(std::u16string_view text) const {
    const auto extended = extendedControl();
    if (!extended) return;
    try {
        DispatchCaller(extended).put(ToolTipName, std::u16string(text));
    } catch (const AutomationError&) {  // an extender without tooltips
    }
}

void ClientSite::onFocus(bool has) const {
    if (const auto site = as<IOleControlSite>()) site->OnFocus(has ? TRUE : FALSE);
}

void ClientSite::pressTab(HWND window) const {
    const auto site = as<IOleControlSite>();
    if (!site) return;
    MSG tab{};
    tab.hwnd = window;
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    tab.lParam = 1 | static_cast<LPARAM>(MapVirtualKeyW(VK_TAB, MAPVK_VK_TO_VSC)) << 16;
    site->TranslateAccelerator(&tab, 0);
}

void ClientSite::controlInfoChanged() const {
    if (const auto site = as<IOleControlSite>()) site->OnControlInfoChanged();
}

void ClientSite::saveObject() const {
    const ComPtr<IOleClientSite> site = Site_;
    if (site) site->SaveObject();
}

// ---- Viewer

void Viewer::set(IAdviseSink* sink, DWORD aspects, DWORD flags) {
    Sink_ = ComPtr<IAdviseSink>(sink);
    Aspects_ = aspects;
    Flags_ = flags;
    if ((flags & ADVF_PRIMEFIRST) != 0) outOfDate();
}

void Viewer::get(IAdviseSink** sink, DWORD* aspects, DWORD* flags) const {
    if (aspects != nullptr) *aspects = Aspects_;
    if (flags != nullptr) *flags = Flags_;
    if (sink != nullptr) *sink = ComPtr<IAdviseSink>(Sink_).detach();
}

void Viewer::outOfDate() {
    const ComPtr<IAdviseSink> sink = Sink_;
    if (!sink) return;
    if ((Flags_ & ADVF_ONLYONCE) != 0) Sink_ = {};
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

// ---- Embedders

IOleAdviseHolder& Embedders::holder() {
    if (!Holder_) check(CreateOleAdviseHolder(Holder_.receive()), "no one can be advised");
    return *Holder_.get();
}

HRESULT Embedders::add(IAdviseSink* sink, DWORD* cookie) { return holder().Advise(sink, cookie); }

HRESULT Embedders::remove(DWORD cookie) { return Holder_ ? Holder_->Unadvise(cookie) : OLE_E_NOCONNECTION; }

HRESULT Embedders::list(IEnumSTATDATA** out) { return holder().EnumAdvise(out); }

void Embedders::saved() const {
    const ComPtr<IOleAdviseHolder> holder = Holder_;
    if (holder) holder->SendOnSave();
}

void Embedders::closed() const {
    const ComPtr<IOleAdviseHolder> holder = Holder_;
    if (holder) holder->SendOnClose();
}

}  // namespace kel::win32::ole
