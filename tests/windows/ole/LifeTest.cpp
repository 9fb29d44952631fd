// Objects and what they leave behind.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

/// The server's file, loaded beside whatever the system loads of it.
class Server {
public:
    explicit Server(const wchar_t* file) : Module_(GetModuleHandleW(file)) { EXPECT(Module_ != nullptr); }

    template <class Function>
    Function* entry(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(Module_, name)));
    }
    HRESULT canUnload() const { return entry<HRESULT STDMETHODCALLTYPE()>("DllCanUnloadNow")(); }

private:
    HMODULE Module_;
};

struct Resources {
    DWORD handles = 0;
    DWORD windows = 0;
    DWORD drawing = 0;
};

Resources resources() {
    Resources used;
    GetProcessHandleCount(GetCurrentProcess(), &used.handles);
    used.windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    used.drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    return used;
}

void liveOnce(IStream* stream) {
    Host host;
    EventSink sink;
    auto field = host.place();
    adviseEvents(field.get(), &sink);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_CODE(field.as<IPersistStreamInit>()->Load(stream), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_UIACTIVATE), S_OK);
    field->put_Text(Str(L"life"));
    Ref<IStream> saved;
    CreateStreamOnHGlobal(nullptr, TRUE, saved.receive());
    EXPECT_CODE(field.as<IPersistStreamInit>()->Save(saved.get(), TRUE), S_OK);
}

/// A larger object that takes a control into itself.
class Outer final : public StackObject<IUnknown> {
public:
    Ref<IUnknown> Inner;

protected:
    void* other(REFIID iid) override {
        void* found = nullptr;
        if (Inner && SUCCEEDED(Inner->QueryInterface(iid, &found))) Release();
        return found;
    }
};

}  // namespace

TEST(life_identity_and_interfaces) {
    const auto field = makeText();
    const auto object = field.as<IOleObject>();
    EXPECT(field.as<IUnknown>().get() == object.as<IUnknown>().get());
    EXPECT(object.as<_KelText>().get() == field.get());
    EXPECT(field.as<IDispatch>().get() == static_cast<IDispatch*>(field.get()));
    for (const GUID& iid :
         {IID_IOleObject, IID_IOleControl, IID_IOleWindow, IID_IOleInPlaceObject, IID_IOleInPlaceActiveObject,
          IID_IViewObject, IID_IViewObject2, IID_IDataObject, IID_IPersist, IID_IPersistStreamInit,
          IID_IPersistPropertyBag, IID_IPersistStorage, IID_IConnectionPointContainer, IID_IProvideClassInfo,
          IID_IProvideClassInfo2, IID_ISupportErrorInfo, IID_IQuickActivate, IID_ISpecifyPropertyPages}) {
        Ref<IUnknown> found;
        EXPECT_CODE(field->QueryInterface(iid, found.receiveVoid()), S_OK);
        EXPECT(found.as<IUnknown>().get() == field.as<IUnknown>().get());
    }
    LPOLESTR type = nullptr;
    EXPECT_CODE(object->GetUserType(USERCLASSTYPE_SHORT, &type), S_OK);
    EXPECT_EQ(std::wstring(type), std::wstring(L"KelText"));
    CoTaskMemFree(type);
    Ref<IUnknown> none;
    EXPECT_CODE(field->QueryInterface(IID_IMarshal, none.receiveVoid()), E_NOINTERFACE);
    EXPECT_CODE(field->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST(life_as_part_of_a_larger_object) {
    const GUID clsid = systemGuid(findIdentity(u"KelText")->coclass);
    Outer outer;
    Ref<IDispatch> refused;
    EXPECT_CODE(CoCreateInstance(clsid, &outer, CLSCTX_INPROC_SERVER, IID_IDispatch, refused.receiveVoid()),
                CLASS_E_NOAGGREGATION);
    EXPECT_CODE(CoCreateInstance(clsid, &outer, CLSCTX_INPROC_SERVER, IID_IUnknown, outer.Inner.receiveVoid()), S_OK);
    {
        Ref<_KelText> field;
        EXPECT_CODE(outer.QueryInterface(__uuidof(_KelText), field.receiveVoid()), S_OK);
        EXPECT(field.as<IUnknown>().get() == static_cast<IUnknown*>(&outer));
        EXPECT_CODE(field->put_Text(Str(L"inside")), S_OK);
        EXPECT_EQ(text(field.get()), std::wstring(L"inside"));
    }
    EXPECT_EQ(outer.References, 1L);
    outer.Inner.reset();
}

TEST(life_quick_activation) {
    Host host;
    const auto field = makeText();
    EventSink sink;
    QACONTAINER container{};
    container.cbSize = sizeof container;
    container.pClientSite = &host;
    container.pUnkEventSink = &sink;
    container.pPropertyNotifySink = &host;
    QACONTROL control{};
    control.cbSize = sizeof control;
    EXPECT_CODE(field.as<IQuickActivate>()->QuickActivate(&container, &control), S_OK);
    EXPECT(control.dwEventCookie != 0 && control.dwPropNotifyCookie != 0);
    EXPECT_EQ(control.dwMiscStatus, 131473UL);
    field->put_Text(Str(L"heard"));
    EXPECT_EQ(sink.Heard.size(), std::size_t{1});
    EXPECT_CODE(field.as<IOleObject>()->SetClientSite(nullptr), S_OK);
}

TEST(life_a_thousand_cycles_leave_nothing) {
    Ref<IStream> stream;
    {
        const auto field = makeText();
        EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
        CreateStreamOnHGlobal(nullptr, TRUE, stream.receive());
        EXPECT_CODE(field.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
        for (int i = 0; i < 20; ++i) liveOnce(stream.get());
        EXPECT_CODE(Server(L"KelControls8.ocx").canUnload(), S_FALSE);
    }
    const Resources before = resources();
    for (int i = 0; i < 1000; ++i) liveOnce(stream.get());
    const Resources after = resources();
    EXPECT(after.handles <= before.handles + 2);
    EXPECT(after.windows <= before.windows + 2);
    EXPECT(after.drawing <= before.drawing + 2);
    EXPECT_CODE(Server(L"KelControls8.ocx").canUnload(), S_OK);
    EXPECT_CODE(Server(L"KelRuntime8.dll").canUnload(), S_OK);
}

TEST(life_embedded_in_a_document) {
    Ref<IStorage> storage;
    EXPECT_CODE(StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                                 storage.receive()),
                S_OK);
    const GUID clsid = systemGuid(findIdentity(u"KelText")->coclass);
    Host host;
    {
        Ref<IOleObject> object;
        EXPECT_CODE(
            OleCreate(clsid, IID_IOleObject, OLERENDER_NONE, nullptr, &host, storage.get(), object.receiveVoid()),
            S_OK);
        EXPECT_CODE(object.as<_KelText>()->put_Text(Str(L"in a document")), S_OK);
        EXPECT_CODE(OleSave(object.as<IPersistStorage>().get(), storage.get(), FALSE), S_OK);
        EXPECT_CODE(object->Close(OLECLOSE_NOSAVE), S_OK);
        EXPECT_CODE(object->SetClientSite(nullptr), S_OK);
    }
    Ref<IOleObject> loaded;
    EXPECT_CODE(OleLoad(storage.get(), IID_IOleObject, &host, loaded.receiveVoid()), S_OK);
    EXPECT_EQ(text(loaded.as<_KelText>().get()), std::wstring(L"in a document"));
    EXPECT_CODE(loaded->SetClientSite(nullptr), S_OK);
}

TEST(manifest_makes_objects_without_registration) {
    CLSID clsid{};
    EXPECT_CODE(CLSIDFromProgID(L"KelControls8.KelText", &clsid), CO_E_CLASSSTRING);
    std::wstring file(MAX_PATH, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), MAX_PATH));
    file = file.substr(0, file.find_last_of(L'\\') + 1) + L"KelControls8.manifest";
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.lpSource = file.c_str();
    HANDLE made = CreateActCtxW(&context);
    EXPECT(made != INVALID_HANDLE_VALUE);
    ULONG_PTR cookie = 0;
    EXPECT(ActivateActCtx(made, &cookie));
    {
        const auto field = makeText();
        EXPECT_CODE(field->put_Text(Str(L"unregistered")), S_OK);
        EXPECT_EQ(text(field.get()), std::wstring(L"unregistered"));
        EXPECT(create(L"KelRuntime8.Runtime"));
        // Hosts ask before they make an object.
        for (const wchar_t* name : {L"KelControls8.KelText", L"KelControls8.KelProgressBar"}) {
            DWORD told = 0, own = 0;
            EXPECT_CODE(CLSIDFromProgID(name, &clsid), S_OK);
            EXPECT_CODE(OleRegGetMiscStatus(clsid, DVASPECT_CONTENT, &told), S_OK);
            EXPECT_CODE(create(name).as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &own), S_OK);
            EXPECT_EQ(told, own);
        }
    }
    DeactivateActCtx(0, cookie);
    ReleaseActCtx(made);
}
