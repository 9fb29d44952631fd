#include "platform/win32/ole/control/ControlParts.h"

#include <algorithm>
#include <array>
#include <cwctype>

#include "host/focus/TabOrder.h"
#include "library/ControlStatus.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

// ---- OleObjectPart

OleObjectPart::OleObjectPart(OleControl& control) : Part(control), Control_(control) {}

HRESULT OleObjectPart::SetClientSite(IOleClientSite* site) noexcept {
    return guarded([&] {
        Control_.setSite(site);
        return S_OK;
    });
}

HRESULT OleObjectPart::GetClientSite(IOleClientSite** site) noexcept {
    if (site == nullptr) return E_POINTER;
    *site = ComPtr<IOleClientSite>(Control_.site().get()).detach();
    return S_OK;
}

HRESULT OleObjectPart::SetHostNames(LPCOLESTR /*application*/, LPCOLESTR /*object*/) noexcept { return S_OK; }

HRESULT OleObjectPart::Close(DWORD saveOption) noexcept {
    return guarded([&] {
        const HRESULT result = Control_.close(saveOption != OLECLOSE_NOSAVE);
        const ComPtr<IOleAdviseHolder> holder = Advises_;
        if (holder) holder->SendOnClose();
        return result;
    });
}

HRESULT OleObjectPart::SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) noexcept { return E_NOTIMPL; }

HRESULT OleObjectPart::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) noexcept {
    if (moniker != nullptr) *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT OleObjectPart::InitFromData(IDataObject* /*data*/, BOOL /*creation*/, DWORD /*reserved*/) noexcept {
    return E_NOTIMPL;
}

HRESULT OleObjectPart::GetClipboardData(DWORD /*reserved*/, IDataObject** data) noexcept {
    if (data != nullptr) *data = nullptr;
    return E_NOTIMPL;
}

HRESULT OleObjectPart::DoVerb(LONG verb, LPMSG /*message*/, IOleClientSite* /*site*/, LONG /*index*/, HWND /*parent*/,
                              LPCRECT /*bounds*/) noexcept {
    return guarded([&] { return doVerb(verb); });
}

HRESULT OleObjectPart::doVerb(LONG verb) {
    switch (verb) {
        case OLEIVERB_INPLACEACTIVATE:
        case OLEIVERB_SHOW: return Control_.activation().activate();
        case OLEIVERB_PRIMARY:
        case OLEIVERB_OPEN:
        case OLEIVERB_UIACTIVATE: {
            const HRESULT result = Control_.activation().activateUi();
            if (SUCCEEDED(result)) Control_.window().setFocus();
            return result;
        }
        case OLEIVERB_HIDE: Control_.activation().deactivate(); return S_OK;
        case OLEIVERB_DISCARDUNDOSTATE: return S_OK;
        default: break;
    }
    if (verb < 0) return E_NOTIMPL;
    const HRESULT result = doVerb(OLEIVERB_PRIMARY);
    return SUCCEEDED(result) ? OLEOBJ_S_INVALIDVERB : result;
}

HRESULT OleObjectPart::EnumVerbs(IEnumOLEVERB** verbs) noexcept {
    if (verbs == nullptr) return E_POINTER;
    *verbs = nullptr;
    return OleRegEnumVerbs(toGuid(Control_.identity().coclass), verbs);
}

HRESULT OleObjectPart::GetUserClassID(CLSID* clsid) noexcept {
    if (clsid == nullptr) return E_POINTER;
    *clsid = toGuid(Control_.identity().coclass);
    return S_OK;
}

HRESULT OleObjectPart::GetUserType(DWORD /*form*/, LPOLESTR* type) noexcept {
    if (type == nullptr) return E_POINTER;
    const std::u16string_view name = Control_.model().name;
    *type = static_cast<LPOLESTR>(CoTaskMemAlloc((name.size() + 1) * sizeof(wchar_t)));
    if (*type == nullptr) return E_OUTOFMEMORY;
    *std::copy(name.begin(), name.end(), *type) = L'\0';
    return S_OK;
}

HRESULT OleObjectPart::SetExtent(DWORD aspect, SIZEL* size) noexcept {
    if (size == nullptr) return E_POINTER;
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
    return guarded([&] {
        Control_.takeHimetricExtent(*size);
        return S_OK;
    });
}

HRESULT OleObjectPart::GetExtent(DWORD aspect, SIZEL* size) noexcept {
    if (size == nullptr) return E_POINTER;
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    *size = Control_.himetricExtent();
    return S_OK;
}

IOleAdviseHolder& OleObjectPart::advises() {
    if (!Advises_) check(CreateOleAdviseHolder(Advises_.receive()), "no one can be advised");
    return *Advises_.get();
}

HRESULT OleObjectPart::Advise(IAdviseSink* sink, DWORD* cookie) noexcept {
    return guarded([&] { return advises().Advise(sink, cookie); });
}

HRESULT OleObjectPart::Unadvise(DWORD cookie) noexcept {
    return guarded([&] { return Advises_ ? Advises_->Unadvise(cookie) : OLE_E_NOCONNECTION; });
}

HRESULT OleObjectPart::EnumAdvise(IEnumSTATDATA** out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return guarded([&] { return advises().EnumAdvise(out); });
}

HRESULT OleObjectPart::GetMiscStatus(DWORD aspect, DWORD* status) noexcept {
    if (status == nullptr) return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? statusBitsOf(Control_.model()) : 0;
    return S_OK;
}

HRESULT OleObjectPart::SetColorScheme(LOGPALETTE* /*palette*/) noexcept { return E_NOTIMPL; }

// ---- OleControlPart

OleControlPart::OleControlPart(OleControl& control) : Part(control), Control_(control) {}

OleControlPart::~OleControlPart() {
    if (Accelerators_ != nullptr) DestroyAcceleratorTable(Accelerators_);
}

void OleControlPart::makeAccelerators(char16_t mnemonic) {
    if (mnemonic == Mnemonic_) return;
    if (Accelerators_ != nullptr) DestroyAcceleratorTable(std::exchange(Accelerators_, nullptr));
    Mnemonic_ = mnemonic;
    if (mnemonic == 0) return;
    std::array<ACCEL, 2> keys{ACCEL{FALT, static_cast<WORD>(std::towlower(mnemonic)), 0},
                              ACCEL{FALT, static_cast<WORD>(std::towupper(mnemonic)), 0}};
    Accelerators_ = CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

HRESULT OleControlPart::GetControlInfo(CONTROLINFO* info) noexcept {
    if (info == nullptr) return E_POINTER;
    return guarded([&] {
        makeAccelerators(mnemonicOf(Control_.control().widgets()));
        info->hAccel = Accelerators_;
        info->cAccel = static_cast<USHORT>(Accelerators_ != nullptr ? 2 : 0);
        info->dwFlags = CTRLINFO_EATS_RETURN;
        return S_OK;
    });
}

HRESULT OleControlPart::OnMnemonic(MSG* message) noexcept {
    if (message == nullptr) return E_POINTER;
    return guarded([&] {
        const HRESULT result = Control_.activation().activateUi();
        FieldWidget* const field = Control_.control().widgets().field;
        if (SUCCEEDED(result) && field != nullptr) field->pressMnemonic();
        return result;
    });
}

HRESULT OleControlPart::OnAmbientPropertyChange(DISPID /*id*/) noexcept { return S_OK; }

HRESULT OleControlPart::FreezeEvents(BOOL freeze) noexcept {
    Control_.freezeEvents(freeze != FALSE);
    return S_OK;
}

// ---- QuickActivatePart

QuickActivatePart::QuickActivatePart(OleControl& control) : Part(control), Control_(control) {}

HRESULT QuickActivatePart::QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept {
    if (container == nullptr || control == nullptr) return E_POINTER;
    if (container->cbSize < sizeof(QACONTAINER) || control->cbSize < sizeof(QACONTROL)) return E_INVALIDARG;
    return guarded([&] {
        const ULONG size = control->cbSize;
        *control = {};
        control->cbSize = size;
        Control_.setSite(container->pClientSite);
        if (container->pAdviseSink != nullptr) Control_.view().SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
        if (container->pUnkEventSink != nullptr)
            Control_.connections().Events.Advise(container->pUnkEventSink, &control->dwEventCookie);
        if (container->pPropertyNotifySink != nullptr)
            Control_.connections().Notify.Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
        control->dwMiscStatus = statusBitsOf(Control_.model());
        control->dwViewStatus = VIEWSTATUS_OPAQUE;
        return S_OK;
    });
}

HRESULT QuickActivatePart::SetContentExtent(LPSIZEL size) noexcept {
    if (size == nullptr) return E_POINTER;
    return guarded([&] {
        Control_.takeHimetricExtent(*size);
        return S_OK;
    });
}

HRESULT QuickActivatePart::GetContentExtent(LPSIZEL size) noexcept {
    if (size == nullptr) return E_POINTER;
    *size = Control_.himetricExtent();
    return S_OK;
}

// ---- ClassInfoPart

HRESULT ClassInfoPart::GetClassInfo(ITypeInfo** info) noexcept {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return guarded([&] { return Types_.typeInfo(toGuid(Identity_.coclass), info); });
}

HRESULT ClassInfoPart::GetGUID(DWORD kind, GUID* guid) noexcept {
    if (guid == nullptr) return E_POINTER;
    *guid = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || !Identity_.hasEvents()) return E_INVALIDARG;
    *guid = toGuid(Identity_.events);
    return S_OK;
}

HRESULT ClassInfoPart::InterfaceSupportsErrorInfo(REFIID iid) noexcept {
    return IsEqualGUID(iid, toGuid(Identity_.dispatch)) ? S_OK : S_FALSE;
}

// ---- PropertyPagesPart

HRESULT PropertyPagesPart::GetPages(CAUUID* pages) noexcept {
    if (pages == nullptr) return E_POINTER;
    *pages = {};
    return S_OK;
}

}  // namespace kel::win32::ole
