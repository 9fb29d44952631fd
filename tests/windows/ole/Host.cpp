#include "tests/windows/ole/Host.h"

#include <algorithm>
#include <optional>

#include "platform/win32/base/Procedure.h"
#include "tests/windows/ole/Check.h"

namespace kel::tests {

namespace {

struct Elsewhere {
    const std::function<void()>& body;
    std::optional<Failure> failure;

    static DWORD WINAPI run(void* elsewhere) {
        auto& self = *static_cast<Elsewhere*>(elsewhere);
        OleInitialize(nullptr);
        try {
            self.body();
        } catch (const Failure& caught) {
            self.failure = caught;
        }
        OleUninitialize();
        return 0;
    }
};

}  // namespace

HRESULT Bag::Read(LPCOLESTR name, VARIANT* value, IErrorLog* /*log*/) {
    if (OnRead) OnRead();
    const auto kept = Values.find(name);
    const auto found = Texts.find(name);
    if (kept == Values.end() && found == Texts.end()) return Absent;
    HandedOver.emplace_back(name);
    if (kept != Values.end()) return VariantCopy(value, &kept->second.Value);
    value->vt = VT_BSTR;
    value->bstrVal = SysAllocString(found->second.c_str());
    return S_OK;
}

HRESULT Bag::Write(LPCOLESTR name, VARIANT* value) {
    Var text;
    EXPECT_CODE(VariantChangeType(&text.Value, value, VARIANT_ALPHABOOL, VT_BSTR), S_OK);
    Written.push_back(std::wstring(name) + L"=" + text.Value.bstrVal);
    return VariantCopy(&Values[name].Value, value);
}

namespace {

template <class Interface>
Ref<Interface> as(IUnknown* control) {
    Ref<Interface> found;
    EXPECT_CODE(control->QueryInterface(__uuidof(Interface), found.receiveVoid()), S_OK);
    return found;
}

}  // namespace

HRESULT load(IUnknown* control, Bag& bag) {
    const std::u16string className = classOf(as<IDispatch>(control).get());
    const HRESULT done = as<IPersistPropertyBag>(control)->Load(&bag, nullptr);
    if (done != S_OK) return done;
    for (const std::wstring& name : bag.HandedOver) useLoaded(className, name);
    return done;
}

HRESULT save(IUnknown* control, Bag& bag) {
    const std::u16string className = classOf(as<IDispatch>(control).get());
    const HRESULT done = as<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE);
    if (done != S_OK) return done;
    for (const auto& [name, value] : bag.Values) useSaved(className, name);
    return done;
}

HRESULT Extender::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    ids[0] = std::wstring(names[0]) == L"ToolTipText" ? 5 : DISPID_UNKNOWN;
    return ids[0] == 5 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT Extender::Invoke(DISPID, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO*, UINT*) {
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
        ToolTipText = arguments->rgvarg[0].bstrVal;
        return S_OK;
    }
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(ToolTipText.c_str());
    return S_OK;
}

Host::Host() {
    Window_ = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
    EXPECT(Window_ != nullptr);
}

Host::~Host() {
    At.clear();
    unload();
    DestroyWindow(Window_);
}

void Host::unload() {
    const Ref<IOleObject> object = std::move(Object_);
    if (!object) return;
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
}

void Host::adopt(IUnknown* control) {
    EXPECT_CODE(control->QueryInterface(IID_IOleObject, Object_.receiveVoid()), S_OK);
    EXPECT_CODE(Object_->SetClientSite(this), S_OK);
    advise(control, IID_IPropertyNotifySink, static_cast<IPropertyNotifySink*>(this));
}

Ref<_KelText> Host::placeNew() {
    const auto field = place();
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    return field;
}

HRESULT Host::verb(LONG verb) {
    const Ref<IOleObject> held = Object_;
    return held->DoVerb(verb, nullptr, this, 0, Window_, &Bounds);
}

bool Host::called(const std::string& name) const { return std::find(Calls.begin(), Calls.end(), name) != Calls.end(); }

HRESULT Host::say(const char* name, HRESULT result) {
    Calls.emplace_back(name);
    if (const auto found = At.find(name); found != At.end()) {
        const auto action = found->second;
        action();
    }
    return result;
}

HRESULT Host::GetWindow(HWND* window) {
    *window = Window_;
    return say("GetWindow", S_OK);
}

HRESULT Host::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT bounds, LPRECT clip,
                               LPOLEINPLACEFRAMEINFO) {
    *frame = Frame.get();
    if (Frame) Frame->AddRef();
    *document = nullptr;
    *bounds = Bounds;
    *clip = {0, 0, 10000, 10000};
    return say("GetWindowContext", S_OK);
}

HRESULT Host::OnPosRectChange(LPCRECT bounds) {
    say("OnPosRectChange", S_OK);
    if (FollowsSize) Bounds = *bounds;
    return inPlace()->SetObjectRects(&Bounds, &Bounds);
}

HRESULT Host::GetExtendedControl(IDispatch** extended) {
    *extended = &Extended;
    Extended.AddRef();
    return S_OK;
}

void Host::say(DISPID ambient, Var value) {
    Ambients[ambient] = std::move(value);
    EXPECT_CODE(Object_.as<IOleControl>()->OnAmbientPropertyChange(ambient), S_OK);
}

HRESULT Host::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
    if (const auto found = Ambients.find(id); found != Ambients.end()) return VariantCopy(result, &found->second.Value);
    if (id != DISPID_AMBIENT_DISPLAYNAME) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(DisplayName.c_str());
    return S_OK;
}

HRESULT Host::OnChanged(DISPID id) {
    Changed.push_back(id);
    return S_OK;
}

void inAnotherApartment(const std::function<void()>& body) {
    Elsewhere elsewhere{body, {}};
    HANDLE thread = CreateThread(nullptr, 0, &Elsewhere::run, &elsewhere, 0, nullptr);
    EXPECT(thread != nullptr);
    while (MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) settle();
    CloseHandle(thread);
    if (elsewhere.failure) throw *elsewhere.failure;
}

SIZEL extentOf(Host& host) {
    SIZEL size{};
    EXPECT_CODE(host.object()->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    return size;
}

HRESULT canUnload(const wchar_t* file) {
    auto* const asked = win32::procedureOf<HRESULT STDMETHODCALLTYPE()>(file, "DllCanUnloadNow");
    EXPECT(asked != nullptr);
    return asked();
}

void pressSpinner(HWND spinner, bool up) {
    RECT area{};
    GetClientRect(spinner, &area);
    click(spinner, {area.right / 2, up ? 2 : area.bottom - 2});
}

}  // namespace kel::tests
