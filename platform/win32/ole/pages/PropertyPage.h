#pragma once

#include <optional>

#include "platform/win32/ole/pages/DialogTemplate.h"
#include "platform/win32/ole/pages/SelectedObjects.h"

namespace kel::win32::ole {

/// A page of a property dialog, as the dialog's frame works it. What was typed and not applied stays while the page has
/// no window: frames close the pages that are not in front.
class PropertyPage : public ComObject, public Part<IPropertyPage2> {
public:
    PropertyPage(Module& module, IUnknown* outer, DesignPage kind);
    ~PropertyPage() override;

    // IPropertyPage
    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) noexcept override;
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT area, BOOL modal) noexcept override;
    HRESULT STDMETHODCALLTYPE Deactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) noexcept override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) noexcept override;
    HRESULT STDMETHODCALLTYPE Show(UINT command) noexcept override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT area) noexcept override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() noexcept override { return Dirty_ ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() noexcept override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR /*folder*/) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) noexcept override;
    // IPropertyPage2
    HRESULT STDMETHODCALLTYPE EditProperty(DISPID id) noexcept override;

protected:
    /// All pages have one size, in which every control of the library finds its place.
    static constexpr short Width = 264;
    static constexpr short Height = 150;
    static constexpr short Margin = 7;

    DesignPage kind() const { return Kind_; }
    const SelectedObjects& objects() const { return Objects_; }
    /// nullptr while the page is not shown.
    HWND window() const { return Window_; }
    HWND item(DWORD id) const { return GetDlgItem(Window_, static_cast<int>(id)); }

    /// Other objects than before, which may be none.
    virtual void takeObjects() = 0;
    virtual void layOut(DialogTemplate& dialog) = 0;
    /// The window is there: shows what is, or was typed.
    virtual void showAll() = 0;
    /// The window is about to go, and may have something that was not taken yet.
    virtual void closing() {}
    /// Puts what was typed; in words what is wrong with it, which stays.
    virtual std::optional<std::u16string> applyAll() = 0;
    /// False where the page does not have this property.
    virtual bool edit(const MemberRow& row) = 0;

    /// A command of one of the children; `code` says what has happened to it.
    virtual void command(DWORD id, UINT code) = 0;
    virtual LRESULT notify(const NMHDR& /*notice*/) { return 0; }
    /// A key that the page has a use for before the dialog.
    virtual bool takeKey(const MSG& /*message*/) { return false; }

    /// Another layout takes the place of the one that is shown.
    void layOutAnew();

    void setDirty(bool dirty);
    /// A line of help, or of what is wrong, below all else.
    void say(const std::u16string& text, bool isError = false);

private:
    void* find(REFIID iid) override { return asOneOf<IPropertyPage, IPropertyPage2>(iid, *this); }

    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM data);
    INT_PTR handle(UINT message, WPARAM wide, LPARAM data);
    bool translate(MSG& message);
    bool wantsKey(MSG& message) const;
    bool leaves(const MSG& message) const;
    void close();

    DesignPage Kind_;
    ComPtr<IPropertyPageSite> Site_;
    SelectedObjects Objects_;
    HWND Window_ = nullptr;
    bool Dirty_ = false;
    bool SaysError_ = false;
};

}  // namespace kel::win32::ole
