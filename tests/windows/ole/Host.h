#pragma once

#include <functional>
#include <map>
#include <memory>

#include "tests/windows/ole/Client.h"
#include "tests/windows/ole/Hands.h"

namespace kel::tests {

/// Property bags know names in any case.
struct NameOrder {
    bool operator()(const std::wstring& left, const std::wstring& right) const {
        return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                    static_cast<int>(right.size()), TRUE) == CSTR_LESS_THAN;
    }
};

/// A property bag in memory. It is read as it stands in `Texts`, or gives the very variants that were written.
class Bag final : public StackObject<IPropertyBag> {
public:
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override;

    /// What was written, in order: "Name=text".
    std::vector<std::wstring> Written;
    /// What was read with success, in order, by the names that the control reads them by.
    std::vector<std::wstring> HandedOver;
    std::map<std::wstring, Var, NameOrder> Values;
    /// What there is to read.
    std::map<std::wstring, std::wstring, NameOrder> Texts;
    HRESULT Absent = E_INVALIDARG;  ///< said of what there is not
    std::function<void()> OnRead;
};

/// Has a control read its properties from a bag, or write them into it.
HRESULT load(IUnknown* control, Bag& bag);
HRESULT save(IUnknown* control, Bag& bag);

/// The control's object that the host puts before it.
class Extender final : public StackObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                     EXCEPINFO*, UINT*) override;

    std::wstring ToolTipText;
};

/// The outermost window of a container, which its controls keep waiting.
class HostFrame final : public StackObject<IOleInPlaceFrame> {
public:
    explicit HostFrame(HWND window) : Window_(window) {}

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
        *window = Window_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject*, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override {
        Waits += enable ? "-" : "+";
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

    std::string Waits;  ///< "+" for each time it was told to wait, "-" for each time no longer to

private:
    HWND Window_;
};

/// A container for one control, with a window of its own. Says what the control asked of it, and can do
/// something of its own at any such moment.
class Host final
    : public StackObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch, IPropertyNotifySink> {
public:
    Host();
    ~Host() override;

    /// Takes a control in; it is not initialised and not active.
    template <class Interface>
    Ref<Interface> place(Ref<Interface> made) {
        adopt(made.get());
        return made;
    }
    Ref<_KelText> place() { return place(makeText()); }
    /// ... and initialised.
    Ref<_KelText> placeNew();
    HRESULT verb(LONG verb);
    IOleObject* object() const { return Object_.get(); }
    Ref<IOleInPlaceObject> inPlace() const { return Object_.as<IOleInPlaceObject>(); }
    void forget() { Object_.reset(); }
    /// As a host does that unloads its form: closes the control and lets it go.
    void unload();
    HWND window() const { return Window_; }

    std::vector<std::string> Calls;
    bool called(const std::string& name) const;
    /// Runs when the control makes this call.
    std::map<std::string, std::function<void()>> At;
    std::wstring DisplayName = L"Field1";
    std::map<DISPID, Var> Ambients;
    /// Changes one of them, and says so.
    void say(DISPID ambient, Var value);
    HRESULT MayEdit = S_OK;
    std::vector<DISPID> Changed;
    RECT Bounds{10, 20, 210, 40};
    bool FollowsSize = true;
    Extender Extended;
    std::unique_ptr<HostFrame> Frame;

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return say("SaveObject", S_OK); }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return say("ShowObject", S_OK); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return say("CanInPlaceActivate", S_OK); }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return say("OnInPlaceActivate", S_OK); }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override { return say("OnUIActivate", S_OK); }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT bounds,
                                               LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return say("OnUIDeactivate", S_OK); }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return say("OnInPlaceDeactivate", S_OK); }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT bounds) override;

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return say("OnControlInfoChanged", S_OK); }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extended) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override {
        return say("TranslateAccelerator", S_FALSE);
    }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL has) override { return say(has ? "OnFocus" : "OnFocusLost", S_OK); }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

    // IDispatch: the ambient properties
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override;

    // IPropertyNotifySink
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override;
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return MayEdit; }

protected:
    void* other(REFIID iid) override {
        return IsEqualGUID(iid, IID_IOleWindow) ? static_cast<IOleInPlaceSite*>(this) : nullptr;
    }

private:
    void adopt(IUnknown* control);
    HRESULT say(const char* name, HRESULT result);

    HWND Window_ = nullptr;
    Ref<IOleObject> Object_;
};

/// A host's run-time object: gives what the default one gives, but for what it has of its own, and counts how often it
/// is asked.
class HostRuntime final : public StackObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return FAILED(Gone) ? Gone : Default->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* passed,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
        ++Asked;
        if (const auto own = Own.find(id); own != Own.end()) return VariantCopy(result, &own->second.Value);
        return Default->Invoke(id, iid, locale, flags, passed, result, exception, argument);
    }

    HRESULT handOver() {
        VARIANT self = plain(VT_DISPATCH);
        self.pdispVal = this;
        return invoke(create(L"KelControls8.KelControlHandler").get(), L"SetRuntime", DISPATCH_METHOD, {self});
    }

    Ref<IDispatch> Default;
    std::map<DISPID, Var> Own;
    HRESULT Gone = S_OK;  ///< said where it is asked for its members
    int Asked = 0;
};

/// Runs `body` on a thread with an apartment of its own, while this one serves its calls. What fails there fails here.
void inAnotherApartment(const std::function<void()>& body);

/// Of the control inside, in hundredths of a millimetre.
SIZEL extentOf(Host& host);

/// What a server that is loaded says when it is asked whether it may go.
HRESULT canUnload(const wchar_t* file);

/// With the mouse.
void pressSpinner(HWND spinner, bool up);

}  // namespace kel::tests
