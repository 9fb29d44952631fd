#pragma once

#include "platform/win32/ole/automation/DualPart.h"

namespace kel::win32::ole {

class OleControl;

/// The control as an object embedded in a host.
class OleObjectPart final : public Part<IOleObject> {
public:
    explicit OleObjectPart(OleControl& control);

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) noexcept override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) noexcept override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR application, LPCOLESTR object) noexcept override;
    HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) noexcept override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation, DWORD reserved) noexcept override;
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                                     LPCRECT bounds) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
    HRESULT STDMETHODCALLTYPE Update() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* clsid) noexcept override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* type) noexcept override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) noexcept override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) noexcept override;

private:
    HRESULT doVerb(LONG verb);
    IOleAdviseHolder& advises();

    OleControl& Control_;
    ComPtr<IOleAdviseHolder> Advises_;
};

/// Keys, ambient properties and the pausing of events.
class OleControlPart final : public Part<IOleControl> {
public:
    explicit OleControlPart(OleControl& control);
    ~OleControlPart() override;

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) noexcept override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) noexcept override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID id) noexcept override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) noexcept override;

private:
    void makeAccelerators(char16_t mnemonic);

    OleControl& Control_;
    HACCEL Accelerators_ = nullptr;
    char16_t Mnemonic_ = 0;
};

/// The whole of a control's introduction to its container in one call.
class QuickActivatePart final : public Part<IQuickActivate> {
public:
    explicit QuickActivatePart(OleControl& control);

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) noexcept override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) noexcept override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) noexcept override;

private:
    OleControl& Control_;
};

/// Where the description of the class stands in the type library.
class ClassInfoPart final : public Part<IProvideClassInfo2, ISupportErrorInfo> {
public:
    ClassInfoPart(ComObject& whole, const ClassIdentity& identity, TypeDescriptions& types)
        : Part(whole), Identity_(identity), Types_(types) {}

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) noexcept override;
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override;

private:
    const ClassIdentity& Identity_;
    TypeDescriptions& Types_;
};

/// There are no property pages: designers show the properties by themselves.
class PropertyPagesPart final : public Part<ISpecifyPropertyPages> {
public:
    using Part::Part;
    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) noexcept override;
};

}  // namespace kel::win32::ole
