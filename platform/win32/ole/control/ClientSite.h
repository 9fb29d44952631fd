#pragma once

#include "platform/win32/ole/com/Com.h"

namespace kel::win32::ole {

/// A control's place in its container, as far as the container offers one: everything here does nothing,
/// or gives nothing, where it does not.
class ClientSite {
public:
    void set(IOleClientSite* site) { Site_ = ComPtr<IOleClientSite>(site); }
    IOleClientSite* get() const { return Site_.get(); }
    explicit operator bool() const { return static_cast<bool>(Site_); }

    /// Another interface of the site.
    template <class I>
    ComPtr<I> as() const {
        return ComPtr<I>::of(Site_.get());
    }

    /// An ambient property of the container as this type; false, and nothing in `out`, where it has none.
    bool ambient(DISPID id, VARTYPE type, OwnedVariant& out) const;

    /// The name that the container knows the control by.
    std::u16string displayName() const;

    /// "ToolTipText" of the container's extended control; failures read as "" and are passed over.
    std::u16string toolTipText() const;
    void setToolTipText(std::u16string_view text) const;

    void onFocus(bool has) const;
    /// The Tab key, as if it had been pressed in `window`.
    void pressTab(HWND window) const;
    void controlInfoChanged() const;
    void saveObject() const;

private:
    ComPtr<IDispatch> extendedControl() const;

    ComPtr<IOleClientSite> Site_;
};

/// Who shows a picture of the control that is not active, and is told when it looks different.
class Viewer {
public:
    /// `sink` may be null.
    void set(IAdviseSink* sink, DWORD aspects, DWORD flags);
    /// Into what of the three the caller wants.
    void get(IAdviseSink** sink, DWORD* aspects, DWORD* flags) const;
    void outOfDate();

private:
    ComPtr<IAdviseSink> Sink_;
    DWORD Aspects_ = 0;
    DWORD Flags_ = 0;
};

/// Who embeds the control in a document and is told what becomes of it.
class Embedders {
public:
    HRESULT add(IAdviseSink* sink, DWORD* cookie);
    HRESULT remove(DWORD cookie);
    HRESULT list(IEnumSTATDATA** out);

    void saved() const;
    void closed() const;

private:
    IOleAdviseHolder& holder();

    ComPtr<IOleAdviseHolder> Holder_;  ///< none until somebody asks for it
};

}  // namespace kel::win32::ole
