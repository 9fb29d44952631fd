#include "platform/win32/ole/control/ControlParts.h"

#include <array>

#include "host/focus/TabOrder.h"
#include "library/ControlStatus.h"
#include "platform/win32/ole/com/Enumerator.h"
#include "platform/win32/ole/control/OleControl.h"

namespace kel::win32::ole {

namespace {

// ---- The control in its host

struct Verb {
    LONG id;
    const char16_t* name;
};

/// What a user may be offered to do with a control that takes the focus.
constexpr Verb Edit{OLEIVERB_PRIMARY, u"&Edit"};

OLEVERB verbForCaller(const Verb& verb) {
    return {verb.id, tryTaskText(verb.name), MF_ENABLED, OLEVERBATTRIB_ONCONTAINERMENU};
}

class EmbeddedPart final : public ControlPart<IOleObject, IQuickActivate> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override { return asOneOf<IOleObject, IQuickActivate>(iid, *this); }

    // ---- IOleObject

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override {
        return guarded([&] { Control_.setSite(site); });
    }
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override {
        if (site == nullptr) return E_POINTER;
        *site = ComPtr<IOleClientSite>(Control_.site().get()).detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR /*application*/, LPCOLESTR /*object*/) noexcept override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) noexcept override {
        return guarded([&] {
            Control_.close(saveOption != OLECLOSE_NOSAVE);
            Control_.embedders().closed();
        });
    }
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) noexcept override {
        if (moniker != nullptr) *moniker = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* /*data*/, BOOL /*creation*/,
                                           DWORD /*reserved*/) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD /*reserved*/, IDataObject** data) noexcept override {
        if (data != nullptr) *data = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG /*message*/, IOleClientSite* /*site*/, LONG /*index*/,
                                     HWND parent, LPCRECT /*bounds*/) noexcept override {
        return guarded([&] { return verb == OLEIVERB_PROPERTIES ? showProperties(Control_, parent) : doVerb(verb); });
    }
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) noexcept override {
        if (verbs == nullptr) return E_POINTER;
        *verbs = nullptr;
        return guarded([&] {
            auto known = std::make_shared<std::vector<Verb>>();
            if (Control_.model().takesFocus) known->push_back(Edit);
            *verbs = new Enumerator<IEnumOLEVERB, Verb, OLEVERB, &verbForCaller>(module(), std::move(known));
        });
    }
    HRESULT STDMETHODCALLTYPE Update() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* clsid) noexcept override {
        if (clsid == nullptr) return E_POINTER;
        *clsid = toGuid(Control_.identity().coclass);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD /*form*/, LPOLESTR* type) noexcept override {
        if (type == nullptr) return E_POINTER;
        *type = nullptr;
        return guarded([&] { *type = makeTaskText(Control_.model().name); });
    }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) noexcept override {
        if (size == nullptr) return E_POINTER;
        if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
        return SetContentExtent(size);
    }
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) noexcept override {
        if (size == nullptr) return E_POINTER;
        return aspect == DVASPECT_CONTENT ? GetContentExtent(size) : DV_E_DVASPECT;
    }
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* cookie) noexcept override {
        return guarded([&] { return Control_.embedders().add(sink, cookie); });
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override {
        return guarded([&] { return Control_.embedders().remove(cookie); });
    }
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** out) noexcept override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        return guarded([&] { return Control_.embedders().list(out); });
    }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) noexcept override {
        if (status == nullptr) return E_POINTER;
        *status = aspect == DVASPECT_CONTENT ? statusBitsOf(Control_.model()) : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* /*palette*/) noexcept override { return E_NOTIMPL; }

    // ---- IQuickActivate: the whole of a control's introduction to its container in one call

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override {
        if (container == nullptr || control == nullptr) return E_POINTER;
        if (container->cbSize < sizeof(QACONTAINER) || control->cbSize < sizeof(QACONTROL)) return E_INVALIDARG;
        return guarded([&] {
            const ULONG size = control->cbSize;
            *control = {};
            control->cbSize = size;
            Control_.setSite(container->pClientSite);
            if (container->pAdviseSink != nullptr) Control_.viewer().set(container->pAdviseSink, DVASPECT_CONTENT, 0);
            if (container->pUnkEventSink != nullptr)
                Control_.connections().Events.Advise(container->pUnkEventSink, &control->dwEventCookie);
            if (container->pPropertyNotifySink != nullptr)
                Control_.connections().Notify.Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
            control->dwMiscStatus = statusBitsOf(Control_.model());
            control->dwViewStatus = ViewStatus;
        });
    }
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) noexcept override {
        if (size == nullptr) return E_POINTER;
        return guarded([&] { Control_.takeHimetricExtent(*size); });
    }
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) noexcept override {
        if (size == nullptr) return E_POINTER;
        *size = Control_.himetricExtent();
        return S_OK;
    }

private:
    HRESULT doVerb(LONG verb) {
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
};

// ---- Keys

class KeysPart final : public ControlPart<IOleControl> {
public:
    using ControlPart::ControlPart;
    ~KeysPart() override { makeAccelerators(0); }

    void* find(REFIID iid) override { return asOneOf<IOleControl>(iid, *this); }

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) noexcept override {
        if (info == nullptr) return E_POINTER;
        return guarded([&] {
            makeAccelerators(mnemonicOf(Control_.control().widgets()));
            info->hAccel = Accelerators_;
            info->cAccel = static_cast<USHORT>(Accelerators_ != nullptr ? AcceleratorCount : 0);
            info->dwFlags = CTRLINFO_EATS_RETURN;
        });
    }
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) noexcept override {
        if (message == nullptr) return E_POINTER;
        return guarded([&] {
            if (!Control_.attended()) return S_OK;
            const HRESULT result = Control_.activation().activateUi();
            FieldWidget* const field = Control_.control().widgets().field;
            if (SUCCEEDED(result) && field != nullptr) field->pressMnemonic();
            return result;
        });
    }
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID /*id*/) noexcept override {
        return guarded([&] { Control_.takeAmbients(); });
    }
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) noexcept override {
        Control_.freezeEvents(freeze != FALSE);
        return S_OK;
    }

private:
    /// Hosts look for a mnemonic with Alt, or, where the focus is in nothing that takes characters, for the plain
    /// character; in either case.
    static constexpr std::size_t AcceleratorCount = 4;

    static WORD inCase(char16_t character, LPWSTR(WINAPI* change)(LPWSTR)) {
        // A text whose address is a single character is that character.
        const auto changed =
            reinterpret_cast<std::uintptr_t>(change(reinterpret_cast<LPWSTR>(std::uintptr_t{character})));
        return static_cast<WORD>(changed);
    }

    void makeAccelerators(char16_t mnemonic) {
        if (mnemonic == Mnemonic_) return;
        if (Accelerators_ != nullptr) DestroyAcceleratorTable(std::exchange(Accelerators_, nullptr));
        Mnemonic_ = mnemonic;
        if (mnemonic == 0) return;
        const WORD small = inCase(mnemonic, &CharLowerW);
        const WORD capital = inCase(mnemonic, &CharUpperW);
        std::array<ACCEL, AcceleratorCount> keys{
            {{FALT, small, 0}, {FALT, capital, 0}, {0, small, 0}, {0, capital, 0}}};
        Accelerators_ = CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
    }

    HACCEL Accelerators_ = nullptr;
    char16_t Mnemonic_ = 0;
};

}  // namespace

std::unique_ptr<ControlInterfaces> makeEmbeddedPart(OleControl& control) {
    return std::make_unique<EmbeddedPart>(control);
}

std::unique_ptr<ControlInterfaces> makeKeysPart(OleControl& control) { return std::make_unique<KeysPart>(control); }

}  // namespace kel::win32::ole
