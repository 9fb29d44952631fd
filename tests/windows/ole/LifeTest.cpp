// Objects and what they leave behind.

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/win32/ole/com/ObjectSafety.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

/// The highest of many handles that are made: those that were given back are given out again first, so that each one
/// that was not raises it. Not every system counts its handles.
template <class Make, class Drop>
std::size_t highestOf(Make make, Drop drop) {
    std::array<decltype(make()), 64> made{};
    std::size_t highest = 0;
    for (auto& handle : made) {
        handle = make();
        highest = std::max(highest, reinterpret_cast<std::size_t>(handle) & 0xFFFFFU);
    }
    for (auto handle : made) drop(handle);
    return highest;
}

BOOL CALLBACK countOwn(HWND window, LPARAM count) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) ++*reinterpret_cast<std::size_t*>(count);
    return TRUE;
}

/// The process's windows, shown or not, those in other windows and those that only take messages.
std::size_t windowCount() {
    std::size_t count = 0;
    const auto counted = reinterpret_cast<LPARAM>(&count);
    EnumChildWindows(GetDesktopWindow(), &countOwn, counted);
    for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        countOwn(window, counted);
    return count;
}

/// Bytes in all heaps of the process.
std::size_t heldMemory() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t held = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps.at(i), &entry) != FALSE)
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) held += entry.cbData;
    }
    return held;
}

struct Resources {
    std::size_t kernel = highestOf([] { return CreateEventW(nullptr, TRUE, FALSE, nullptr); }, &CloseHandle) / 4;
    std::size_t drawing = highestOf([] { return CreateSolidBrush(0x123456); }, &DeleteObject) & 0xFFFFU;
    std::size_t windows = windowCount();
    std::size_t memory = heldMemory();
};

/// Ten thousand, say, when somebody has the time.
int cyclesWanted() {
    const char* const wanted = std::getenv("KEL_CYCLES");
    return wanted != nullptr ? std::atoi(wanted) : 1000;
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

/// Runs `body` in another apartment, with what stands there for the field.
void asProxy(const Ref<_KelText>& field, const std::function<void(_KelText&)>& body) {
    Ref<IStream> handedOver;
    EXPECT_CODE(CoMarshalInterThreadInterfaceInStream(__uuidof(_KelText), field.get(), handedOver.receive()), S_OK);
    inAnotherApartment([&] {
        Ref<_KelText> proxy;
        EXPECT_CODE(CoUnmarshalInterface(handedOver.get(), __uuidof(_KelText), proxy.receiveVoid()), S_OK);
        body(*proxy.get());
    });
}

/// A form is opened, a date typed into it, and closed.
void liveWithDate() {
    const auto day = makeDate();
    Bag bag;
    EXPECT_CODE(load(day.get(), bag), S_OK);
    EXPECT_CODE(put(day.get(), L"Value", Var(L"15mar2013").Value), S_OK);
    EXPECT_EQ(late(day.get(), L"Value"), L"date 41348");
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

TEST(life_of_an_object_that_strangers_may_call) {
    struct Row {
        const wchar_t* object;
        DWORD promises;
        bool handsOver;
    };
    constexpr DWORD Caller = INTERFACESAFE_FOR_UNTRUSTED_CALLER, Data = INTERFACESAFE_FOR_UNTRUSTED_DATA;
    const Row rows[] = {{L"KelControls8.KelText", Caller | Data, false},
                        {L"KelControls8.KelProgressBar", Caller | Data, false},
                        {L"KelControls8.KelControlHandler", Caller, true}};
    for (const Row& row : rows) {
        const auto object = create(row.object);
        const auto safety = object.as<IObjectSafety>();
        EXPECT(safety);
        DWORD promised = 0, kept = 0;
        EXPECT_CODE(safety->GetInterfaceSafetyOptions(IID_IDispatch, &promised, &kept), S_OK);
        EXPECT_EQ(promised, row.promises);
        EXPECT_EQ(kept, 0UL);
        EXPECT_CODE(safety->SetInterfaceSafetyOptions(IID_IMarshal, Caller, Caller), E_NOINTERFACE);
        EXPECT_CODE(safety->SetInterfaceSafetyOptions(IID_IDispatch, Caller | INTERFACE_USES_DISPEX, Caller), E_FAIL);
        EXPECT_CODE(safety->SetInterfaceSafetyOptions(IID_IDispatch, row.promises, Caller), S_OK);
        EXPECT_CODE(safety->GetInterfaceSafetyOptions(IID_IDispatch, &promised, &kept), S_OK);
        EXPECT_EQ(kept, Caller);
        if (!row.handsOver) continue;
        // The object would be that of every control in the apartment, other pages' too.
        VARIANT runtime = plain(VT_DISPATCH);
        runtime.pdispVal = object.get();
        EXPECT_CODE(invoke(object.get(), L"SetRuntime", DISPATCH_METHOD, {runtime}), E_ACCESSDENIED);
        EXPECT_CODE(object.as<_KelControlHandler>()->SetRuntime(object.get()), E_ACCESSDENIED);
    }
    // It presses keys.
    EXPECT(!create(L"KelRuntime8.Runtime").as<IObjectSafety>());
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

TEST(life_cycles_leave_nothing) {
    Ref<IStream> stream;
    {
        const auto field = makeText();
        EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
        CreateStreamOnHGlobal(nullptr, TRUE, stream.receive());
        EXPECT_CODE(field.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
        for (int i = 0; i < 20; ++i) liveOnce(stream.get());
        EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_FALSE);
    }
    constexpr std::size_t Few = 100;  // what the system keeps for the next time
    const Resources before;
    for (int i = 0; i < cyclesWanted(); ++i) liveOnce(stream.get());
    const Resources after;
    EXPECT(after.kernel <= before.kernel + Few);
    EXPECT(after.drawing <= before.drawing + Few);
    EXPECT(after.windows <= before.windows + Few);
    EXPECT(after.memory <= before.memory + 50'000);
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_OK);
    EXPECT_CODE(canUnload(L"KelRuntime8.dll"), S_OK);
}

TEST(life_of_a_run_time_object_is_that_of_its_apartment) {
    HostRuntime runtime;
    inAnotherApartment([&] {
        runtime.Default = create(L"KelRuntime8.Runtime");
        EXPECT_CODE(runtime.handOver(), S_OK);
        liveWithDate();
        const int asked = runtime.Asked;
        EXPECT(asked > 0);
        inAnotherApartment(&liveWithDate);
        EXPECT_EQ(runtime.Asked, asked);
        // With its last form closed a host that tidies up keeps what it has handed over.
        EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_FALSE);
        liveWithDate();
        EXPECT(runtime.Asked > asked);
        runtime.Default.reset();
    });
    EXPECT_EQ(runtime.References, 1L);
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_OK);
}

TEST(life_of_a_list_that_a_host_still_reads) {
    Ref<IEnumOLEVERB> verbs, copy;
    EXPECT_CODE(makeText().as<IOleObject>()->EnumVerbs(verbs.receive()), S_OK);
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_FALSE);
    EXPECT_CODE(verbs->Clone(copy.receive()), S_OK);
    verbs.reset();
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_FALSE);
    copy.reset();
    EXPECT_CODE(canUnload(L"KelControls8.ocx"), S_OK);
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
        Ref<IEnumOLEVERB> verbs;
        EXPECT_CODE(field.as<IOleObject>()->EnumVerbs(verbs.receive()), S_OK);
        OLEVERB verb{};
        EXPECT_CODE(verbs->Next(1, &verb, nullptr), S_OK);
        EXPECT_EQ(verb.lVerb, static_cast<LONG>(OLEIVERB_PRIMARY));
        CoTaskMemFree(verb.lpszVerbName);
        asProxy(field, [](_KelText& proxy) { EXPECT_CODE(proxy.put_Caption(Str(L"from elsewhere")), S_OK); });
        EXPECT_EQ(captionOf(field.get()), std::wstring(L"from elsewhere"));
        EXPECT(create(L"KelRuntime8.Runtime"));
        for (const PageIdentity& page : identities::Pages) {
            Ref<IUnknown> shown;
            EXPECT_CODE(CoCreateInstance(systemGuid(page.coclass), nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                         shown.receiveVoid()),
                        S_OK);
        }
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
